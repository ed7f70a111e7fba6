#include "support/LettorePdf.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

namespace {

constexpr double MillimetriPerPunto = 25.4 / 72;
constexpr double PixelPerMillimetro = LettorePdf::PuntiPerPollice / 25.4;
constexpr int AttesaDelLettore = 60'000;

QByteArray Esegue(const QString &programma, const QStringList &argomenti)
{
    QProcess processo;
    processo.start(programma, argomenti);
    if (!processo.waitForFinished(AttesaDelLettore) || processo.exitCode() != 0) {
        qFatal("%s: %s", qPrintable(programma), processo.readAllStandardError().constData());
    }
    return processo.readAllStandardOutput();
}

/// A binary PPM of 8 bits; read here because a whole sheet is beyond Qt's limit for pictures.
QImage DaPpm(const QByteArray &ppm)
{
    static const QRegularExpression Testa(QStringLiteral("^P6\\s(\\d+)\\s(\\d+)\\s255\\s"));
    const QRegularExpressionMatch testa = Testa.match(QString::fromLatin1(ppm.left(40)));
    const int larghezza = testa.captured(1).toInt();
    const int altezza = testa.captured(2).toInt();
    if (larghezza <= 0 || ppm.size() != testa.capturedLength() + 3LL * larghezza * altezza) {
        return {};
    }
    QImage immagine(larghezza, altezza, QImage::Format_RGB32);
    const auto *byte = reinterpret_cast<const uchar *>(ppm.constData()) + testa.capturedLength();
    for (int y = 0; y < altezza; ++y) {
        auto *riga = reinterpret_cast<QRgb *>(immagine.scanLine(y));
        for (int x = 0; x < larghezza; ++x, byte += 3) {
            riga[x] = qRgb(byte[0], byte[1], byte[2]);
        }
    }
    return immagine;
}

} // namespace

LettorePdf::LettorePdf(const QString &percorso)
    : percorso_(percorso)
{
    QXmlStreamReader xml(Esegue(QStringLiteral("pdftotext"),
                                {QStringLiteral("-bbox"), percorso, QStringLiteral("-")}));
    // The head of that output is HTML with entities that XML does not know.
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const auto numero = [&](const char *nome) {
            return xml.attributes().value(QLatin1String(nome)).toDouble() * MillimetriPerPunto;
        };
        if (xml.name() == QLatin1String("page")) {
            ++pagine_;
            foglio_ = {numero("width"), numero("height")};
        } else if (xml.name() == QLatin1String("word")) {
            const QRectF posto(QPointF(numero("xMin"), numero("yMin")),
                               QPointF(numero("xMax"), numero("yMax")));
            parole_.append({xml.readElementText(), posto});
        }
    }
    if (pagine_ == 0) {
        qFatal("%s holds no page: %s", qPrintable(percorso), qPrintable(xml.errorString()));
    }
}

QStringList LettorePdf::Testi() const
{
    QStringList testi;
    for (const Parola &parola : parole_) {
        testi.append(parola.Testo);
    }
    return testi;
}

QRectF LettorePdf::Parola1(const QString &testo) const
{
    for (const Parola &parola : parole_) {
        if (parola.Testo == testo) {
            return parola.Millimetri;
        }
    }
    return {};
}

QList<LettorePdf::Carattere> LettorePdf::Caratteri() const
{
    const QStringList righe = QString::fromUtf8(Esegue(QStringLiteral("pdffonts"), {percorso_}))
                                  .split(u'\n', Qt::SkipEmptyParts);
    QList<Carattere> caratteri;
    for (qsizetype i = 2; i < righe.size(); ++i) {
        const QString nome = righe.at(i).section(u' ', 0, 0);
        static const QRegularExpression Incorporato(
            QStringLiteral("\\s(yes|no)\\s+(?:yes|no)\\s+(?:yes|no)\\s"));
        caratteri.append({nome.mid(nome.indexOf(u'+') + 1),
                          Incorporato.match(righe.at(i)).captured(1) == QLatin1String("yes")});
    }
    return caratteri;
}

int LettorePdf::Immagini() const
{
    const QByteArray elenco =
        Esegue(QStringLiteral("pdfimages"), {QStringLiteral("-list"), percorso_});
    return int(elenco.count('\n')) - 2;
}

QStringList LettorePdf::RigheImmagini() const
{
    QStringList righe =
        QString::fromUtf8(Esegue(QStringLiteral("pdfimages"), {QStringLiteral("-list"), percorso_}))
            .split(u'\n', Qt::SkipEmptyParts)
            .mid(2);
    std::transform(righe.begin(), righe.end(), righe.begin(),
                   [](const QString &riga) { return riga.simplified(); });
    return righe;
}

QStringList LettorePdf::Codifiche() const
{
    constexpr int Colonna = 8;
    QStringList codifiche;
    for (const QString &riga : RigheImmagini()) {
        codifiche.append(riga.section(u' ', Colonna, Colonna));
    }
    return codifiche;
}

QStringList LettorePdf::Forme() const
{
    QStringList forme;
    for (const QString &riga : RigheImmagini()) {
        forme.append(riga.section(u' ', 3, 5) + u' ' + riga.section(u' ', 7, 7));
    }
    return forme;
}

QImage LettorePdf::Immagine(int k) const
{
    QTemporaryDir dir;
    Esegue(QStringLiteral("pdfimages"), {percorso_, dir.filePath(QStringLiteral("i"))});
    QFile file(dir.filePath(QStringLiteral("i-%1.ppm").arg(k, 3, 10, QLatin1Char('0'))));
    return file.open(QIODevice::ReadOnly) ? DaPpm(file.readAll()) : QImage();
}

const QImage &LettorePdf::Pixel() const
{
    if (pixel_.isNull()) {
        const QByteArray ppm = Esegue(
            QStringLiteral("pdftoppm"),
            {QStringLiteral("-r"), QString::number(PuntiPerPollice), QStringLiteral("-f"),
             QStringLiteral("1"), QStringLiteral("-l"), QStringLiteral("1"), QStringLiteral("-aa"),
             QStringLiteral("no"), QStringLiteral("-aaVector"), QStringLiteral("no"), percorso_});
        pixel_ = DaPpm(ppm);
        if (pixel_.isNull()) {
            qFatal("%s cannot be shown", qPrintable(percorso_));
        }
    }
    return pixel_;
}

QRgb LettorePdf::Colore(double x, double y) const
{
    return Pixel().pixel(int(x * PixelPerMillimetro), int(y * PixelPerMillimetro));
}

QRectF LettorePdf::Inchiostro(const QRectF &zona, const Condizione &condizione) const
{
    const QRect rettangolo =
        QRectF(zona.topLeft() * PixelPerMillimetro, zona.size() * PixelPerMillimetro)
            .toAlignedRect() &
        Pixel().rect();
    QRect trovato;
    for (int y = rettangolo.top(); y <= rettangolo.bottom(); ++y) {
        const auto *riga = reinterpret_cast<const QRgb *>(Pixel().constScanLine(y));
        for (int x = rettangolo.left(); x <= rettangolo.right(); ++x) {
            const bool vale = condizione ? condizione(riga[x]) : (riga[x] & 0xFFFFFF) != 0xFFFFFF;
            if (vale) {
                trovato |= QRect(x, y, 1, 1);
            }
        }
    }
    return {QPointF(trovato.topLeft()) / PixelPerMillimetro,
            QSizeF(trovato.size()) / PixelPerMillimetro};
}

QRectF LettorePdf::Inchiostro() const
{
    return Inchiostro(QRectF(QPointF(0, 0), foglio_));
}
