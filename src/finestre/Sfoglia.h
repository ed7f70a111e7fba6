#pragma once

#include "finestre/MiniatureFile.h"

#include <QDialog>
#include <QStringList>

#include <memory>

class QLabel;
class QStringListModel;

namespace Ui {
class Sfoglia;
}

/// The path chosen in the browser, or the name handed in when the user closed it without choosing.
/// Program-wide: it outlives the browser, and confirming without a choice leaves it as it was.
QString &RisultatoSfoglia();

/// The program's own modal file browser. The caller sets the text of FileEntrata, runs exec() and
/// reads RisultatoSfoglia().
class Sfoglia : public QDialog
{
    Q_OBJECT
public:
    explicit Sfoglia(QWidget *padre = nullptr);
    ~Sfoglia() override;

    /// The label that holds the full file name handed in.
    QLabel *FileEntrata() const;
    /// The folder to start in when the name handed in tells none; without it, the user's own.
    void ImpostaPartenza(const QString &cartella) { partenza_ = cartella; }
    /// As MiniatureFile::ImpostaLettore, before the browser is shown.
    void ImpostaMiniature(const LettoreMiniature &lettore);
    /// The open folder, as the folder list shows it; a root ends in a separator.
    QString CartellaAperta() const { return cartella_; }

    void done(int esito) override;

protected:
    void showEvent(QShowEvent *evento) override;

private:
    void CollegaSegnali();
    void Form_Activate();
    void Form_Unload();
    void Drive1_Change();
    void Dir1_Change();
    void File1_Click();
    void Command8_Click();
    void Command7_Click();

    /// False when the folder of the file handed in is not there; another one is open then.
    bool ApreCartellaIniziale();
    void ApreCartellaScelta();
    void SaleDiUnaCartella();
    /// ApreCartella with the busy pointer; of one that cannot be read the message tells.
    void MostraCartella(const QString &cartella, const QString &seIlleggibile);
    /// Lists the folder. False when it cannot be read; the lists then stay as they were.
    bool ApreCartella(const QString &cartella);
    void ElencaCartelle(const QStringList &figlie);
    void SelezionaDrive();
    QStringList Radici() const;

    std::unique_ptr<Ui::Sfoglia> ui_;
    QStringListModel *file_;
    MiniatureFile *miniature_;
    QString cartella_;
    QString partenza_;
    QStringList nomiFile_;  ///< of the open folder, read together with it
    qint16 confermato_ = 0; ///< Vero or Falso
};
