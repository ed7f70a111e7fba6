#include "Fotografia.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <utility>

namespace {

constexpr int PixelPerUnita = 2;
constexpr int Pausa = 30; // ms
constexpr int ProveMassime = 100;
constexpr QColor Contorno{0x8a, 0x94, 0xa6};
constexpr QColor Scrivania{0xdd, 0xe3, 0xec};

/// While it lives the windows show other names of folders.
class NomiNeutri
{
public:
    NomiNeutri(const QList<QWidget *> &finestre, const Fotografia::Cartelle &vere)
        : vere_(vere)
    {
        for (QWidget *finestra : finestre) {
            for (auto *etichetta : finestra->findChildren<QLabel *>()) {
                Scambia(etichetta->text(),
                        [etichetta](const QString &testo) { etichetta->setText(testo); });
            }
            for (auto *casella : finestra->findChildren<QLineEdit *>()) {
                Scambia(casella->text(), [casella](const QString &testo) {
                    const QSignalBlocker zitta(casella);
                    casella->setText(testo);
                });
            }
            for (auto *elenco : finestra->findChildren<QListWidget *>()) {
                for (int i = 0; i < elenco->count(); ++i) {
                    QListWidgetItem *voce = elenco->item(i);
                    Scambia(voce->text(), [voce](const QString &testo) { voce->setText(testo); });
                }
            }
            for (auto *albero : finestra->findChildren<QTreeWidget *>()) {
                for (QTreeWidgetItemIterator voce(albero); *voce != nullptr; ++voce) {
                    QTreeWidgetItem *questa = *voce;
                    Scambia(questa->text(0),
                            [questa](const QString &testo) { questa->setText(0, testo); });
                }
            }
        }
    }
    ~NomiNeutri()
    {
        for (const auto &ripristina : ripristini_) {
            ripristina();
        }
    }
    Q_DISABLE_COPY_MOVE(NomiNeutri)

private:
    void Scambia(const QString &testo, const std::function<void(const QString &)> &scrive)
    {
        QString neutro = testo;
        for (const auto &[vera, mostrata] : vere_) {
            // A name alone is that of a folder in a list.
            if (vera.contains(u'/')) {
                neutro.replace(vera, mostrata);
            } else if (neutro == vera) {
                neutro = mostrata;
            }
        }
        if (neutro != testo) {
            scrive(neutro);
            ripristini_.append([scrive, testo] { scrive(testo); });
        }
    }

    const Fotografia::Cartelle &vere_;
    QList<std::function<void()>> ripristini_;
};

QImage Compone(const QList<QWidget *> &finestre, const QRect &ritaglio)
{
    const auto posto = [](const QWidget *finestra) {
        return QRect(finestra->mapToGlobal(QPoint(0, 0)), finestra->size());
    };
    QRect intero;
    if (ritaglio.isNull()) {
        for (const QWidget *finestra : finestre) {
            intero |= posto(finestra);
        }
    } else {
        intero = ritaglio.translated(posto(finestre.first()).topLeft());
    }
    QImage foto(intero.size() * PixelPerUnita, QImage::Format_RGB32);
    foto.setDevicePixelRatio(PixelPerUnita);
    foto.fill(Scrivania);
    QPainter penna(&foto);
    const QPen linea(Contorno, 1);
    const auto contorna = [&](const QRect &rettangolo) {
        penna.setPen(linea);
        penna.drawRect(QRectF(rettangolo).adjusted(0.5, 0.5, -0.5, -0.5));
    };
    for (QWidget *finestra : finestre) {
        const QRect qui = posto(finestra).translated(-intero.topLeft());
        penna.drawPixmap(qui.topLeft(), finestra->grab());
        contorna(qui);
    }
    contorna(QRect(QPoint(0, 0), intero.size()));
    return foto;
}

} // namespace

void Fallisce(const QString &motivo)
{
    throw std::runtime_error(motivo.toStdString());
}

Fotografia::Fotografia(QString cartella, Cartelle vere)
    : cartella_(std::move(cartella))
    , vere_(std::move(vere))
{
}

void Fotografia::Ritrae(const QString &nome, const QList<QWidget *> &finestre,
                        const QRect &ritaglio) const
{
    Attende();
    const NomiNeutri neutri(finestre, vere_);
    QImage foto = Compone(finestre, ritaglio);
    // Small pictures of files, for one, come when they have been read.
    for (int prova = 0; prova < ProveMassime; ++prova) {
        Attende();
        QImage dopo = Compone(finestre, ritaglio);
        if (std::exchange(foto, dopo) == dopo) {
            break;
        }
    }
    const QString file = cartella_ + u'/' + nome + QStringLiteral(".png");
    if (!foto.save(file)) {
        Fallisce(QStringLiteral("cannot write ") + file);
    }
}

void Fotografia::AlDialogo(const QString &nome, const char *classe, const Azione &apre,
                           const SulDialogo &chiude, const SulDialogo &prepara) const
{
    const QWidget *prima = QApplication::activeModalWidget();
    std::exception_ptr guasto;
    bool venuto = false;
    QTimer attesa;
    QObject::connect(&attesa, &QTimer::timeout, &attesa, [&] {
        auto *dialogo = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (dialogo == nullptr || dialogo == prima || !dialogo->isVisible()) {
            return;
        }
        attesa.stop();
        venuto = true;
        // Nothing may be thrown across the event loop.
        try {
            if (!dialogo->inherits(classe)) {
                Fallisce(nome + QStringLiteral(": another dialog, ") + dialogo->windowTitle());
            }
            if (prepara) {
                prepara(*dialogo);
            }
            Ritrae(nome, {dialogo});
            if (chiude) {
                chiude(*dialogo);
            }
        } catch (...) {
            guasto = std::current_exception();
        }
        if (guasto || !chiude) {
            dialogo->done(QDialog::Rejected);
        }
    });
    attesa.start(Pausa);
    apre();
    if (guasto) {
        std::rethrow_exception(guasto);
    }
    if (!venuto) {
        Fallisce(QStringLiteral("no dialog for ") + nome);
    }
}

void Fotografia::Attende()
{
    QTest::qWait(Pausa);
}

QList<QWidget *> Fotografia::Fumetti()
{
    QList<QWidget *> fumetti;
    for (QWidget *finestra : QApplication::topLevelWidgets()) {
        if (finestra->isVisible() && finestra->windowType() == Qt::ToolTip) {
            fumetti.append(finestra);
        }
    }
    return fumetti;
}

QWidget *Fotografia::Finestra(const char *nome)
{
    const QWidgetList finestre = QApplication::topLevelWidgets();
    const auto trovata = std::find_if(finestre.begin(), finestre.end(), [nome](QWidget *finestra) {
        return finestra->isVisible() && finestra->objectName() == QLatin1String(nome);
    });
    if (trovata == finestre.end()) {
        Fallisce(QStringLiteral("no window ") + QString::fromLatin1(nome));
    }
    return *trovata;
}
