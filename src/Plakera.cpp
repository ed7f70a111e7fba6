#include "Plakera.h"

#include "catalogue/SelezioneArchivifrm.h"
#include "editor/Form2.h"
#include "editor/LavoroRimasto.h"
#include "finestre/ApriManuale.h"
#include "finestre/Finestre.h"
#include "finestre/Guardia.h"
#include "preview/Frm1.h"

#include <QApplication>
#include <QIcon>
#include <QKeyEvent>

Plakera::Plakera(QObject *padre)
    : QObject(padre)
{
    qApp->installEventFilter(this);
    connect(this, &Plakera::Dipinta, this, &Plakera::DopoLaPrimaPittura, Qt::QueuedConnection);
    connect(this, &Plakera::Mostrata, this, &Plakera::OffreLavoro, Qt::QueuedConnection);
}

Plakera::~Plakera() = default;

bool Plakera::Avvia(const QString &datiIndicati, const QString &modello)
{
    scelta_ = std::make_unique<SelezioneArchivifrm>(stato_);
    bool avviato = false;
    if (!Guardia(nullptr, [&] { avviato = scelta_->Form_Load(datiIndicati); }) || !avviato) {
        return false;
    }
    connect(scelta_.get(), &SelezioneArchivifrm::ModelloScelto, this, &Plakera::ApreEditor);
    if (!modello.isEmpty()) {
        return Guardia(nullptr, [&] { scelta_->Indica(modello); }) && MostraEditor();
    }
    scelta_->show();
    return true;
}

void Plakera::ApreEditor()
{
    if (!MostraEditor()) {
        ChiudeEditor();
    }
}

bool Plakera::MostraEditor()
{
    editor_ = std::make_unique<Form2>(stato_);
    bool caricato = false;
    if (!Guardia(nullptr, [&] { caricato = editor_->Form_Load(); }) || !caricato) {
        return false;
    }
    connect(editor_.get(), &Form2::Chiuso, this, &Plakera::ChiudeEditor);
    editor_->Anteprima()->show();
    editor_->show();
    editor_->activateWindow();
    return true;
}

void Plakera::ChiudeEditor()
{
    scelta_->show();
    // The editor may be the sender of the signal that brought us here.
    if (editor_) {
        editor_.release()->deleteLater();
    }
}

void Plakera::DopoLaPrimaPittura()
{
    // Looking for the readers of picture files alone takes longer than reading the archive.
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/plakera.png")));
}

void Plakera::OffreLavoro()
{
    Guardia(scelta_.get(), [this] {
        if (OffreLavoroRimasto(scelta_.get(), stato_)) {
            scelta_->AggiornaElenchi();
        }
    });
}

bool Plakera::eventFilter(QObject *oggetto, QEvent *evento)
{
    if (!dipinta_ && evento->type() == QEvent::Paint) {
        dipinta_ = true;
        emit Dipinta();
    }
    // Not with the box of a message that the loading shows.
    if (!mostrata_ && evento->type() == QEvent::Paint && scelta_ && scelta_->isVisible()) {
        mostrata_ = true;
        emit Mostrata();
    }
    if (evento->type() == QEvent::KeyPress && oggetto->isWidgetType() &&
        static_cast<QKeyEvent *>(evento)->key() == Qt::Key_F1) {
        auto *controllo = static_cast<QWidget *>(oggetto);
        // A key held down is still one request.
        if (!static_cast<QKeyEvent *>(evento)->isAutoRepeat()) {
            Guardia(controllo->window(), [&] { ApriGuida(ArgomentoDi(controllo)); });
        }
        return true;
    }
    return QObject::eventFilter(oggetto, evento);
}
