#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QString>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

/// Works the controls of a window as a user does, finding them by their names.
namespace Controlli {

/// The control of that name; ends the test program when the window has none of that class.
template <typename Controllo>
Controllo *Trova(const QWidget &finestra, const char *nome)
{
    auto *controllo = finestra.findChild<Controllo *>(QString::fromLatin1(nome));
    if (controllo == nullptr) {
        qFatal("no control %s", nome);
    }
    return controllo;
}

/// Clicks the control with the mouse.
inline void Preme(QWidget &finestra, const char *nome)
{
    auto *controllo = Trova<QWidget>(finestra, nome);
    // A click on the far left also hits the part of an option button that reacts.
    const QPoint punto(qMin(10, controllo->width() / 2), controllo->height() / 2);
    QTest::mouseClick(controllo, Qt::LeftButton, Qt::NoModifier, punto);
}

/// Replaces the text of a box by typing.
inline void Digita(QWidget &finestra, const char *nome, const QString &testo)
{
    auto *casella = Trova<QLineEdit>(finestra, nome);
    casella->setFocus();
    casella->selectAll();
    QTest::keyClick(casella, Qt::Key_Delete);
    for (const QChar c : testo) {
        // The test library knows the keys of ASCII characters only.
        if (c.unicode() < 0x80) {
            QTest::keyClick(casella, c.toLatin1());
        } else {
            QTest::sendKeyEvent(QTest::Click, casella, Qt::Key_unknown, QString(c), Qt::NoModifier);
        }
    }
}

inline QString Testo(const QWidget &finestra, const char *nome)
{
    return Trova<QLineEdit>(finestra, nome)->text();
}

/// Whether a box too narrow for its text shows the beginning of it.
inline bool MostraLInizio(QLineEdit &casella)
{
    casella.setFixedWidth(60);
    casella.grab(); // painting scrolls the text to the cursor
    return casella.fontMetrics().horizontalAdvance(casella.text()) > casella.width() &&
           casella.cursorPositionAt({2, casella.height() / 2}) == 0;
}

/// Opens a long list; fails the test unless it shows some 20 of its rows at most.
inline void VerificaVentiRighe(QComboBox &elenco)
{
    elenco.showPopup();
    QTRY_VERIFY(elenco.view()->isVisible());
    const double righe =
        double(elenco.view()->viewport()->height()) / elenco.view()->sizeHintForRow(0);
    QVERIFY2(righe > 10 && righe <= 20.5, qPrintable(QString::number(righe)));
    elenco.hidePopup();
}

/// Turns the wheel over a control; true when the control takes it for itself.
inline bool GiraRotella(QWidget *controllo, int scatti)
{
    constexpr int Scatto = 120; // eighths of a degree
    const QPointF centro = controllo->rect().center();
    QWheelEvent giro(centro, controllo->mapToGlobal(centro), {}, {0, scatti * Scatto}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    giro.ignore();
    QCoreApplication::sendEvent(controllo, &giro);
    return giro.isAccepted();
}

} // namespace Controlli
