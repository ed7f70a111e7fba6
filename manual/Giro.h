#pragma once

#include "catalogue/SelezioneArchivifrm.h"
#include "documento/StatoProgramma.h"
#include "editor/Form2.h"

#include <QString>

#include <memory>

class Fotografia;
class VediStampa;

/// The round of the windows, wired as the program does it, with a picture at each stop.
class Giro
{
public:
    /// dati is the data folder, with the sample archive; foto must outlive it. Throws
    /// std::runtime_error when the start window does not load.
    Giro(const QString &dati, const Fotografia &foto);
    ~Giro();
    Q_DISABLE_COPY_MOVE(Giro)

    /// Takes all pictures. Throws std::runtime_error when a window does not do what it should.
    void Fa();

private:
    QString Modelli() const { return stato_.CartellaModelli; }
    Form2 &Editor() const { return *editor_; }
    Frm1 &Anteprima() const { return *editor_->Anteprima(); }

    void Apre(const QString &nome);

    /// What the pictures have changed is thrown away.
    void Chiude();
    void Zoom(double zoom);
    void Pagina(int quale);
    int Numero(Genere genere, const QString &nome) const;
    Chiave Campo(const QString &nome) const { return {Genere::Campo, Numero(Genere::Campo, nome)}; }

    /// The editor above its preview.
    void RitraeLavoro(const QString &nome, const QList<QWidget *> &altre = {}) const;
    void FinestraIniziale();
    void FinestraDiLavoro();
    void Scelti();

    /// The column beside the pages, with something to save and to undo.
    void Comandi();
    void PagineDegliElementi();
    void Dialoghi();
    void Righe();
    void Correzione();
    void Elenco();

    /// As the program shows it with a printer that has A4 paper and reaches up to 5 mm of its edge.
    std::unique_ptr<VediStampa> Vista();
    void Stampa();
    void Domande();
    void Sfondo();
    void Controlli();

    /// The work of an editor that is gone without closing is offered at the next opening.
    void LavoroInterrotto();

    const Fotografia &foto_;
    StatoProgramma stato_;
    SelezioneArchivifrm scelta_;
    std::unique_ptr<Form2> editor_;
    QString dati_;
};
