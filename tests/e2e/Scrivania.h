#pragma once

#include "Schermo.h"

#include <QHash>
#include <QProcessEnvironment>

#include <memory>

class CodaDiStampa;
class LettorePdf;

/// The desk of a user of the real program: a screen, folders of its own for data, settings and
/// state, and the program on it. Nothing of the user who runs the tests is read or written.
class Scrivania
{
public:
    /// scala: the screen's pixels for one of the program's.
    explicit Scrivania(QSize pixel = {1366, 768}, double scala = 1);
    ~Scrivania();
    Q_DISABLE_COPY_MOVE(Scrivania)

    Schermo &Video() { return *schermo_; }
    double Scala() const { return scala_; }
    /// The archives, a copy of the sample ones.
    QString Dati() const { return In(QStringLiteral("Dati")); }
    QString CartellaModelli() const { return Dati() + QStringLiteral("/Contabilita/ini/"); }
    QString Impostazioni() const { return In(QStringLiteral("impostazioni")); }
    QString Stato() const { return In(QStringLiteral("stato")); }
    QString In(const QString &nome) const { return dir_.filePath(nome); }
    /// What the program is started with; to be changed before the start.
    QProcessEnvironment &Ambiente() { return ambiente_; }

    /// A started program; ended with the object at the latest.
    std::unique_ptr<QProcess> Nuovo(const QStringList &argomenti = {}) const;
    /// The one program of this desk.
    void Avvia(const QStringList &argomenti = {});
    QProcess &Programma() { return *programma_; }
    /// Waits for the end of the program and gives its exit status, -1 after a crash.
    static int EsitoDi(QProcess &programma);
    /// As the system kills: without a word.
    void Uccide();

    /// Lets the program print into the queue.
    void CollegaStampante(const CodaDiStampa &coda);

    // What the user does.

    /// Picks the model of the selected archive in the start window and presses the button.
    void SceglieModello(const QString &nome);
    /// The same, when nothing is asked.
    void ApreModello(const QString &nome);
    /// Waits for the sheet of a model that was opened in any other way.
    void AttendeFoglio();
    Schermo::Finestra Editor() { return schermo_->Attiva(TitoloEditor); }
    Schermo::Finestra Anteprima() { return schermo_->Attiva(TitoloAnteprima); }
    /// Closes the editor, which must not ask anything.
    void ChiudeEditor();
    void ChiudeInizio();
    /// Turns to a page of the editor, 0 to 5; the keyboard is on its tab.
    void Pagina(int pagina);
    /// Prints the test texts with the button and gives the sheet that came.
    LettorePdf StampaInCoda(CodaDiStampa &coda);
    /// Waits for the one sheet that the queue prints now.
    static LettorePdf UnicoFoglio(CodaDiStampa &coda);
    /// Prints the saved model without windows. Throws what the program says against it.
    LettorePdf StampaInPdf(const QString &modello) const;
    /// Saves with the button and answers the question with Yes.
    void Salva();
    /// Types the scale and waits until the preview shows it.
    void Zoom(const QString &scala);
    /// The pixel of a point of the paper, in mm, while the preview is not scrolled.
    QPoint SulFoglio(QPointF millimetri) const;
    /// Pixels of so many mm of paper.
    double Pixel(double millimetri) const;
    /// Points at a field until it lights up. Frames in front of it give way one at a time.
    void PuntaCampo(QPointF millimetri);
    /// Points at a field, takes it by its handle and drops it where its corner comes to lie on the
    /// other point; both in mm of paper. tasto as in Schermo::Trascina.
    void TrascinaCampo(QPointF campo, QPointF a, const QString &tasto = {});
    /// The same from any point of the paper to another, while the preview is not scrolled.
    void TrascinaSulFoglio(QPointF da, QPointF a) const;
    /// Points at a field and clicks with Ctrl, which puts it into the chosen set or takes it out.
    void SceglieCampo(QPointF millimetri);
    /// Selects a frame by a click, then drags its right edge by so many of the program's pixels.
    void AllargaCornice(QPointF dentro, QPointF bordo, int pixel);
    /// Opens the dialog of the field, frame or image at the point of the paper.
    Schermo::Finestra ProprietaCampo(QPointF millimetri);
    Schermo::Finestra ProprietaCornice(QPointF millimetri);
    Schermo::Finestra ProprietaImmagine(QPointF millimetri);

    static const QString TitoloInizio;
    static const QString TitoloEditor;
    static const QString TitoloAnteprima;
    static const QString TitoloRiquadro;
    static const QString TitoloCampo;
    static const QString TitoloCornice;
    static const QString TitoloImmagine;

private:
    /// The inode of each model file.
    QHash<QString, quint64> FileDeiModelli() const;
    void CercaFoglio();
    void Trascina(QPoint da, QPoint a, const QString &tasto = {}) const;

    QTemporaryDir dir_;
    std::unique_ptr<Schermo> schermo_;
    double scala_;
    QProcessEnvironment ambiente_;
    std::unique_ptr<QProcess> programma_;
    QPoint origine_; ///< of the sheet, once it has been seen
    double zoom_ = 1;
};
