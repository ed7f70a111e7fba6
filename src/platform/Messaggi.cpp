#include "platform/Messaggi.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include <cstdio>

namespace {

bool soloErroreStandard = false;
int emessi = 0;

void ScriveErroreStandard(QString testo)
{
    testo.replace(u'\n', u' ');
    std::fprintf(stderr, "%s\n", qUtf8Printable(testo));
    ++emessi;
}

void MostraRiquadro(QWidget *padre, const QString &testo, QMessageBox::Icon icona)
{
    if (soloErroreStandard) {
        ScriveErroreStandard(testo);
        return;
    }
    QMessageBox riquadro(icona, Messaggi::Titolo, testo, QMessageBox::Ok, padre);
    riquadro.setTextFormat(Qt::PlainText);
    riquadro.button(QMessageBox::Ok)->setText(QStringLiteral("OK"));
    riquadro.exec();
}

} // namespace

void Messaggi::Mostra(QWidget *padre, const QString &testo)
{
    MostraRiquadro(padre, testo, QMessageBox::NoIcon);
}

void Messaggi::MostraCritico(QWidget *padre, const QString &testo)
{
    MostraRiquadro(padre, testo, QMessageBox::Critical);
}

bool Messaggi::Domanda(QWidget *padre, const QString &testo, Risposta predefinita)
{
    if (soloErroreStandard) {
        return predefinita == Risposta::Si;
    }
    QMessageBox riquadro(QMessageBox::Question, Titolo, testo, QMessageBox::Yes | QMessageBox::No,
                         padre);
    riquadro.setTextFormat(Qt::PlainText);
    riquadro.button(QMessageBox::Yes)->setText(QStringLiteral("&Sì"));
    riquadro.button(QMessageBox::No)->setText(QStringLiteral("&No"));
    riquadro.setDefaultButton(predefinita == Risposta::Si ? QMessageBox::Yes : QMessageBox::No);
    riquadro.setEscapeButton(QMessageBox::No);
    return riquadro.exec() == QMessageBox::Yes;
}

std::optional<QString> Messaggi::ChiedeTesto(QWidget *padre, const QString &titolo,
                                             const QString &richiesta, const QString &proposta)
{
    if (soloErroreStandard) {
        return std::nullopt;
    }
    QInputDialog riquadro(padre);
    riquadro.setWindowTitle(titolo);
    riquadro.setLabelText(richiesta);
    riquadro.setTextValue(proposta);
    riquadro.setOkButtonText(QStringLiteral("OK"));
    riquadro.setCancelButtonText(QStringLiteral("Annulla"));
    if (riquadro.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return riquadro.textValue();
}

void Messaggi::SoloErroreStandard()
{
    soloErroreStandard = true;
}

int Messaggi::Emessi()
{
    return emessi;
}
