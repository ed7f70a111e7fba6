#pragma once

#include <QDialog>

#include <memory>

struct Modello;

namespace Ui {
class FrmLavoroRimasto;
}

/// The sheet of a model that is in no editor, to be looked at.
class FrmLavoroRimasto : public QDialog
{
    Q_OBJECT
public:
    /// percorso is where the model's file was; its pictures are looked up there.
    FrmLavoroRimasto(const Modello &modello, const QString &percorso, QWidget *padre);
    ~FrmLavoroRimasto() override;

private:
    std::unique_ptr<Ui::FrmLavoroRimasto> ui_;
};
