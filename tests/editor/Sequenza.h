#pragma once

#include "Postazione.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <random>

struct StatoVisto;

/// A random model and random commands on it, all decided by the seed.
class Sequenza
{
public:
    explicit Sequenza(unsigned seme);
    ~Sequenza();

    Postazione Posto;

    /// Each of these gives an empty text, or what went wrong.
    QString Apre();
    /// One command: a button, a gesture or a dialog from beginning to end.
    QString Comando();
    /// Leaves the editor with or without saving, or deletes all frames, and opens the model again.
    QString Chiude();

    int Passi() const { return passi_; }
    /// The commands so far.
    const QStringList &Diario() const { return diario_; }
    /// What had been opened.
    const StatoVisto &AllInizio() const { return *allInizio_; }

    /// Does anything; every box that opens is answered at random.
    QString Esegue(const QString &nome, const std::function<void()> &azione);

    /// True for a message that a user may meet who types what the sequences type.
    static bool Previsto(const QString &messaggio);

private:
    int Numero(int quanti); ///< from 0 to quanti - 1
    bool Volte(int su) { return Numero(su) == 0; }
    Genere UnGenere();
    /// A slot of the kind, the separator's too; of any element, deleted ones included.
    int UnaVoce(Genere genere);
    double Millimetri(int da, int a);
    QString TestoMillimetri();
    QString UnNome();
    QString UnTesto();
    template <typename Tipo>
    Tipo Uno(std::initializer_list<Tipo> fra)
    {
        return *(fra.begin() + Numero(static_cast<int>(fra.size())));
    }

    void RiempieModello();
    void RiempieCampi();
    void RiempieCornici();
    void RiempieImmagini();

    void Risponde(QDialog *dialogo);
    void Lavora(QDialog &dialogo);
    void ScriveCaselle(QDialog &dialogo, std::initializer_list<const char *> testi,
                       std::initializer_list<const char *> numeri);
    void ScegliCarattere(QDialog &dialogo);
    void LavoraCampo(QDialog &dialogo);
    void LavoraCornice(QDialog &dialogo);
    void LavoraImmagine(QDialog &dialogo);

    void Aggiunge();
    void Modifica();
    void SulFoglio();
    void Scelta();
    void ScegliColMouse();
    void TrascinaGliScelti();
    void TastiSulFoglio();
    void Righe();
    void Spostamento();
    void Sfondo();
    void Vista();
    void Salva();
    void Storia();

    /// Empty when every handle stands on an element that the sheet shows.
    QString ManigliaFuoriVista() const;

    std::mt19937 generatore_;
    QStringList diario_;
    std::unique_ptr<StatoVisto> allInizio_;
    int passi_ = 0;
    int nomi_ = 0;
};
