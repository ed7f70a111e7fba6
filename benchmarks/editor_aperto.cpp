#include "documento/StatoProgramma.h"
#include "editor/Form2.h"
#include "preview/Frm1.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QWindow>

/// editor_aperto FOLDER MODEL: opens the model of the archive folder in the editor, paints the
/// windows and ends, for whoever measures what that takes.
int main(int argc, char *argv[])
{
    const QApplication applicazione(argc, argv);
    const QStringList argomenti = QCoreApplication::arguments();
    if (argomenti.size() != 3) {
        return 2;
    }
    StatoProgramma stato;
    stato.CartellaModelli = argomenti[1];
    stato.NomeFile = argomenti[2];
    Form2 editor(stato);
    if (!editor.Form_Load()) {
        return 1;
    }
    editor.show();
    editor.Anteprima()->show();
    // What is shown is painted when its exposure comes from the screen, not at once.
    constexpr int Limite = 10'000; // ms
    QElapsedTimer tempo;
    tempo.start();
    while (editor.Anteprima()->windowHandle() == nullptr ||
           !editor.Anteprima()->windowHandle()->isExposed()) {
        if (tempo.elapsed() > Limite) {
            return 3;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    QCoreApplication::processEvents();
    return 0;
}
