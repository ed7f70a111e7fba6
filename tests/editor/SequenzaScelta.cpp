// The commands of a sequence on several elements: choosing, the keys of the sheet, the clipboard.

#include "Sequenza.h"
#include "preview/Controlli.h"

void Sequenza::Scelta()
{
    switch (Numero(4)) {
    case 0:
        ScegliColMouse();
        break;
    case 1:
        TrascinaGliScelti();
        break;
    default:
        TastiSulFoglio();
    }
}

void Sequenza::ScegliColMouse()
{
    if (Volte(3)) {
        const QPointF da(Millimetri(0, 200), Millimetri(0, 300));
        if (Posto.SulFoglio(da)) {
            Posto.Trascina(da, da + QPointF(Millimetri(-100, 100), Millimetri(-100, 100)));
        }
        return;
    }
    for (int volte = 1 + Numero(3); volte > 0; --volte) {
        const Genere genere = UnGenere();
        const int i = UnaVoce(genere);
        if (i == 0 || Posto.Elemento(genere, i) == nullptr) {
            continue;
        }
        const QPointF mezzo = Posto.Mezzo(genere, i);
        if (Posto.SulFoglio(mezzo)) {
            Posto.Clicca(mezzo, Qt::LeftButton, Qt::ControlModifier);
        }
    }
}

void Sequenza::TrascinaGliScelti()
{
    const QList<Chiave> scelti = Posto.Archivio.Stato().selezione.Scelti();
    if (scelti.isEmpty()) {
        return;
    }
    const Chiave uno = scelti.at(Numero(static_cast<int>(scelti.size())));
    const QPointF mezzo = Posto.Mezzo(uno.genere, uno.indice);
    if (Posto.SulFoglio(mezzo)) {
        Posto.Clicca(mezzo, Qt::LeftButton, Qt::ControlModifier); // in hand, but out of the set
        Posto.Clicca(mezzo, Qt::LeftButton, Qt::ControlModifier);
        Posto.TrascinaManiglia(uno.genere, {Millimetri(-60, 60), Millimetri(-60, 60)});
    }
}

void Sequenza::TastiSulFoglio()
{
    struct Tasto
    {
        Qt::Key tasto;
        Qt::KeyboardModifiers modi;
    };
    constexpr auto Ctrl = Qt::ControlModifier;
    constexpr auto Maiusc = Qt::ShiftModifier;
    static const Tasto Tasti[] = {
        {Qt::Key_Tab, {}},
        {Qt::Key_Tab, Ctrl},
        {Qt::Key_Tab, Maiusc},
        {Qt::Key_A, Ctrl},
        {Qt::Key_Escape, {}},
        {Qt::Key_Left, {}},
        {Qt::Key_Right, Maiusc},
        {Qt::Key_Up, Maiusc},
        {Qt::Key_Down, {}},
        {Qt::Key_Right, Ctrl},
        {Qt::Key_Up, Ctrl},
        {Qt::Key_Down, Ctrl | Maiusc},
        {Qt::Key_Left, Qt::AltModifier},
        {Qt::Key_Return, {}},
        {Qt::Key_Delete, {}},
        {Qt::Key_C, Ctrl},
        {Qt::Key_X, Ctrl},
        {Qt::Key_V, Ctrl},
        {Qt::Key_V, Ctrl | Maiusc},
        {Qt::Key_D, Ctrl},
        {Qt::Key_S, Ctrl | Maiusc},
        {Qt::Key_O, Ctrl | Maiusc},
        {Qt::Key_B, Ctrl | Maiusc},
        {Qt::Key_M, Ctrl | Maiusc},
        {Qt::Key_H, Ctrl | Maiusc},
        {Qt::Key_J, Ctrl | Maiusc},
        {Qt::Key_U, Ctrl | Maiusc},
        {Qt::Key_G, Ctrl},
        {Qt::Key_End, {}},
        {Qt::Key_Home, {}},
    };
    for (int volte = 1 + Numero(5); volte > 0; --volte) {
        const Tasto &tasto = Tasti[Numero(static_cast<int>(std::size(Tasti)))];
        diario_.append(QStringLiteral("  tasto %1 %2")
                           .arg(int(tasto.tasto), 0, 16)
                           .arg(int(tasto.modi), 0, 16));
        Posto.TastoSulFoglio(tasto.tasto, tasto.modi);
    }
}
