// Makes the user's manual (PDF) from manuale.html: table of contents with page numbers, pictures
// scaled to the column, page numbers at the foot.
//
// crea_manuale SORGENTE.html CARTELLA_FIGURE VERSIONE USCITA.pdf

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr double PixelPerMillimetro = 96 / 25.4; // the unit of lengths in the HTML
constexpr double Margine = 20;                   // mm, on all four sides of the A4 sheet
constexpr double LarghezzaTesto = 210 - 2 * Margine;
constexpr double AltezzaTesto = 297 - 2 * Margine;
constexpr double AltezzaFigura = 150; // mm, the highest picture
constexpr int Risoluzione = 600;      // dots per inch of the PDF

double Punti(double millimetri)
{
    return millimetri / 25.4 * Risoluzione;
}

struct Titolo
{
    int livello; // 1 or 2
    QString testo;
    int pagina; // from 1
};

/// Writes a failure to standard error; the result is the exit status.
int Fallisce(const QString &motivo)
{
    std::fprintf(stderr, "crea_manuale: %s\n", qPrintable(motivo));
    return 1;
}

/// The <img> of a figure with its size on the sheet, or nothing when there is no such picture.
/// percento is the share of the column that it may take.
QString MarcaFigura(const QString &percorso, double percento)
{
    const QSize naturale = QImageReader(percorso).size();
    if (naturale.isEmpty())
        return {};
    QSizeF limite(LarghezzaTesto * percento / 100, AltezzaFigura);
    // A small picture keeps its natural size: enlarged screen text looks broken.
    limite = limite.boundedTo(QSizeF(naturale) / PixelPerMillimetro);
    const QSizeF misura = QSizeF(naturale).scaled(limite, Qt::KeepAspectRatio) * PixelPerMillimetro;
    return QStringLiteral("<img src=\"%1\" width=\"%2\" height=\"%3\">")
        .arg(percorso)
        .arg(std::max(1.0, std::floor(misura.width())))
        .arg(std::max(1.0, std::floor(misura.height())));
}

/// Gives every figure its size. Pictures are taken from the running program, which a build without
/// a display cannot do: a figure whose picture is not there is left out with its caption.
QString SistemaFigure(const QString &html, const QDir &figure)
{
    static const QRegularExpression paragrafo(
        QStringLiteral(
            "<p class=\"figura\"><img src=\"([^\"]+)\"(?: width=\"(\\d+)%\")?>(.*?)</p>"),
        QRegularExpression::DotMatchesEverythingOption);
    QString risultato;
    qsizetype fine = 0;
    QRegularExpressionMatchIterator trovati = paragrafo.globalMatch(html);
    while (trovati.hasNext()) {
        const QRegularExpressionMatch trovato = trovati.next();
        risultato += html.mid(fine, trovato.capturedStart() - fine);
        fine = trovato.capturedEnd();
        const QString larghezza = trovato.captured(2);
        const QString marca = MarcaFigura(figure.absoluteFilePath(trovato.captured(1)),
                                          larghezza.isEmpty() ? 100 : larghezza.toDouble());
        if (!marca.isEmpty())
            risultato += QStringLiteral("<p class=\"figura\">") + marca + trovato.captured(3) +
                         QStringLiteral("</p>");
    }
    return risultato + html.mid(fine);
}

QString Indice(const QList<Titolo> &titoli)
{
    QString righe;
    for (const Titolo &titolo : titoli) {
        const QString testo = titolo.testo.toHtmlEscaped();
        righe += QStringLiteral("<tr><td class=\"indice%1\">%2</td>"
                                "<td class=\"indice%1\" align=\"right\" width=\"8%\">%3</td></tr>")
                     .arg(QString::number(titolo.livello), testo, QString::number(titolo.pagina));
    }
    return QStringLiteral("<table class=\"indice\" border=\"0\" width=\"100%\">") + righe +
           QStringLiteral("</table>");
}

/// The manual laid out for the PDF's resolution.
class Impaginazione
{
public:
    Impaginazione(const QString &html, QPdfWriter &uscita)
    {
        documento.setDocumentMargin(0);
        documento.setDefaultFont(QFont(QStringLiteral("Liberation Sans"), 10));
        documento.documentLayout()->setPaintDevice(&uscita);
        documento.setHtml(html);
        Impagina();
        TieneUnitiITitoli();
    }

    int Pagine() const { return documento.pageCount(); }

    QList<Titolo> Titoli() const
    {
        QList<Titolo> titoli;
        for (QTextBlock b = documento.begin(); b.isValid(); b = b.next())
            if (const int livello = b.blockFormat().headingLevel())
                titoli.append({livello, b.text(), Pagina(b)});
        return titoli;
    }

    void Disegna(QPainter &pittore, int pagina)
    {
        const double alto = (pagina - 1) * Punti(AltezzaTesto);
        pittore.save();
        pittore.translate(Punti(Margine), Punti(Margine) - alto);
        documento.drawContents(&pittore,
                               QRectF(0, alto, Punti(LarghezzaTesto), Punti(AltezzaTesto)));
        pittore.restore();
    }

private:
    int Pagina(const QTextBlock &blocco) const
    {
        // The first line, not the block: a block that starts with a page break still has its top
        // on the page before.
        const QRectF posto = documento.documentLayout()->blockBoundingRect(blocco);
        const double riga = blocco.layout()->lineCount() ? blocco.layout()->lineAt(0).y() : 0;
        const double alto = posto.top() + riga + Punti(1);
        return int(alto / Punti(AltezzaTesto)) + 1;
    }

    /// A heading at the foot of a page moves to the next one, where its text is.
    void TieneUnitiITitoli()
    {
        for (QTextBlock b = documento.begin(); b.isValid(); b = b.next()) {
            if (b.blockFormat().headingLevel() == 0 || !b.next().isValid())
                continue;
            if (Pagina(b) == Pagina(b.next()))
                continue;
            QTextBlockFormat formato;
            formato.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
            QTextCursor(b).mergeBlockFormat(formato);
            Impagina();
        }
    }

    /// Lays everything out afresh: after a change of a block's format the layout's own update
    /// leaves gaps where later blocks stood.
    void Impagina()
    {
        documento.setPageSize(QSizeF());
        documento.setPageSize(QSizeF(Punti(LarghezzaTesto), Punti(AltezzaTesto)));
    }

    QTextDocument documento;
};

void DisegnaPiede(QPainter &pittore, int pagina)
{
    if (pagina == 1) // the cover
        return;
    QFont carattere(QStringLiteral("Liberation Sans"));
    carattere.setPointSizeF(8);
    pittore.setFont(carattere);
    pittore.setPen(QPen(QColor(0xc5, 0xcf, 0xdf), Punti(0.2)));
    const double y = 297 - Margine + 6;
    pittore.drawLine(QPointF(Punti(Margine), Punti(y)), QPointF(Punti(210 - Margine), Punti(y)));
    pittore.setPen(QColor(0x5a, 0x5a, 0x5a));
    const QRectF riga(Punti(Margine), Punti(y + 1), Punti(LarghezzaTesto), Punti(5));
    pittore.drawText(riga, Qt::AlignLeft, QStringLiteral("Plakera - Manuale d'uso"));
    pittore.drawText(riga, Qt::AlignRight, QString::number(pagina));
}

/// The table of contents takes the same room whatever its numbers, so the pages found with a
/// provisional one hold for the true one.
QString ConIndice(const QString &html, QPdfWriter &uscita)
{
    const QString posto = QStringLiteral("<!--INDICE-->");
    QList<Titolo> titoli = Impaginazione(html, uscita).Titoli();
    titoli = Impaginazione(QString(html).replace(posto, Indice(titoli)), uscita).Titoli();
    return QString(html).replace(posto, Indice(titoli));
}

/// False when the PDF cannot be written.
bool Scrive(Impaginazione &manuale, QPdfWriter &uscita)
{
    QPainter pittore;
    if (!pittore.begin(&uscita))
        return false;
    pittore.setRenderHint(QPainter::LosslessImageRendering); // screen pictures blur as JPEG
    pittore.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int pagina = 1; pagina <= manuale.Pagine(); ++pagina) {
        if (pagina > 1 && !uscita.newPage())
            return false;
        manuale.Disegna(pittore, pagina);
        DisegnaPiede(pittore, pagina);
    }
    return pittore.end();
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication programma(argc, argv);
    const QStringList parole = QGuiApplication::arguments();
    if (parole.size() != 5)
        return Fallisce(QStringLiteral("SORGENTE.html CARTELLA_FIGURE VERSIONE USCITA.pdf"));

    QFile sorgente(parole.at(1));
    if (!sorgente.open(QIODevice::ReadOnly))
        return Fallisce(parole.at(1) + QStringLiteral(": ") + sorgente.errorString());
    QString html = QString::fromUtf8(sorgente.readAll());
    html.replace(QStringLiteral("{VERSIONE}"), parole.at(3));
    html = SistemaFigure(html, QDir(parole.at(2)));

    const QString &nomeUscita = parole.at(4);
    if (!QFileInfo(nomeUscita).absoluteDir().mkpath(QStringLiteral(".")))
        return Fallisce(nomeUscita + QStringLiteral(": its folder cannot be made"));
    QPdfWriter uscita(nomeUscita);
    uscita.setResolution(Risoluzione);
    uscita.setPageSize(QPageSize(QPageSize::A4));
    uscita.setPageMargins(QMarginsF(0, 0, 0, 0));
    uscita.setTitle(QStringLiteral("Plakera - Manuale d'uso"));
    uscita.setCreator(QStringLiteral("Plakera ") + parole.at(3));

    Impaginazione manuale(ConIndice(html, uscita), uscita);
    if (!Scrive(manuale, uscita))
        return Fallisce(nomeUscita + QStringLiteral(": cannot be written"));
    return 0;
}
