#pragma once

#include "editor/Form2.h"
#include "preview/Frm1.h"
#include "print/StampaProva.h"
#include "print/Stampanti.h"
#include "support/ArchivioDiProva.h"
#include "support/Finestre.h"
#include "support/ImmaginiDiProva.h"
#include "support/Robot.h"

#include <QDialog>
#include <QLineEdit>
#include <QScreen>
#include <QTest>

#include <memory>
#include <stdexcept>

/// Closes a box that fits the screen with its buttons; fails the test otherwise.
inline void ChiudeSeSulloSchermo(QDialog *dialogo)
{
    const QSize schermo = dialogo->screen()->availableSize();
    if (dialogo->size().boundedTo(schermo) != dialogo->size()) {
        const QString misura = QStringLiteral("a box of %1 x %2 does not fit the screen")
                                   .arg(dialogo->width())
                                   .arg(dialogo->height());
        QTest::qFail(qPrintable(misura), __FILE__, __LINE__);
    }
    dialogo->reject();
}

/// A model with so many elements of each kind in a real archive, open in an editor not yet shown.
class EditorAperto : public ArchivioDiProva
{
public:
    explicit EditorAperto(int perGenere = 0)
    {
        Riempie(perGenere);
        Scrive();
        editor_ = std::make_unique<Form2>(Stato());
        if (!editor_->Form_Load()) {
            throw std::runtime_error("the model does not open");
        }
    }

    Form2 &Editor() { return *editor_; }

private:
    std::unique_ptr<Form2> editor_;
};

/// An editor over a model that the test composes, not yet shown.
class EditorSulModello
{
public:
    template <typename Azione>
    explicit EditorSulModello(Azione &&compone)
    {
        compone(prova);
        prova.Scrive();
        editor = std::make_unique<Form2>(prova.Stato());
        caricato = editor->Form_Load();
    }
    ~EditorSulModello() { prova.Stato().documento.Salvato(); }
    Q_DISABLE_COPY_MOVE(EditorSulModello)

    const Modello &Aperto() const { return prova.Aperto(); }

    ArchivioDiProva prova;
    std::unique_ptr<Form2> editor;
    bool caricato = false;
};

/// Colour of the preview's sheet at a point in mm of screen.
inline QColor ColoreDelFoglio(const Form2 &editor, double x, double y)
{
    auto *foglio = Trova<QGraphicsView>(*editor.Anteprima(), "P1");
    const QPixmap foto = foglio->grab();
    const double scala = foglio->width() / 240.0;
    return foto.toImage().pixelColor(qRound(x * scala), qRound(y * scala));
}

/// A red scan of so many mm, at 10 dots a millimetre, in the folder of the model.
inline QString ScriveScansione(const ArchivioDiProva &archivio, int larghezza, int altezza)
{
    const QString file = archivio.Stato().CartellaModelli + QStringLiteral("scansione.bmp");
    ImmaginiDiProva::Scrive(
        file,
        ImmaginiDiProva::InFormato(
            ImmaginiDiProva::Tinta({larghezza * 10, altezza * 10}, qRgb(255, 0, 0)), "bmp", 254));
    return file;
}

/// An editor opened on a model in a real archive, and what its user meets: boxes are answered by
/// the robot handed in.
class EditoreDiProva
{
public:
    ArchivioDiProva Archivio;

    /// Writes the model and opens the editor and its preview, painted. False when it does not open.
    bool Apre()
    {
        Archivio.Scrive();
        return ApreComeSta();
    }

    /// As Apre, with the file as it stands.
    bool ApreComeSta()
    {
        Editor = std::make_unique<Form2>(Archivio.Stato());
        if (!Editor->Form_Load()) {
            return false;
        }
        Editor->show();
        Editor->Anteprima()->show();
        Foto();
        return true;
    }

    /// The preview as it is painted now.
    QImage Foto() const
    {
        QCoreApplication::processEvents();
        return Editor->Anteprima()->grab().toImage();
    }

    /// Types a scale into the zoom box, and paints.
    void Zoom(const QString &testo) const
    {
        auto *casella = Trova<QLineEdit>(*Editor->Anteprima(), "TextZoom");
        casella->setFocus();
        casella->setText(testo);
        QTest::keyClick(casella, Qt::Key_Return);
        Foto();
    }

    /// Opens the property dialog of an element, as a double click on the preview does.
    void ApreProprieta(Genere genere, int i) const
    {
        emit Editor->Anteprima()->RichiestaProprieta(genere, i);
    }

    /// Prints the model on an A4 sheet; the messages that the user would see.
    QStringList Stampa() const
    {
        QStringList avvisi;
        const QString pdf = Archivio.Stato().CartellaModelli + QStringLiteral("../foglio.pdf");
        StampaModello(Archivio.Aperto(), Archivio.Stato().CartellaModelli, *Stampanti::SuPdf(pdf),
                      false, [&](const QString &testo) { avvisi.append(testo); });
        return avvisi;
    }

    std::unique_ptr<Form2> Editor;
};
