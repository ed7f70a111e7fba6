#include "preview/PassoDiGesto.h"

#include "documento/StatoProgramma.h"

#include <cmath>

PassoDiGesto::PassoDiGesto(StatoProgramma &stato, Chiave chiave, QLatin1String verbo)
    : stato_(stato)
    , chiave_(chiave)
    , verbo_(verbo)
    , sospesa_(std::in_place, stato.documento)
{
}

Passo &PassoDiGesto::Iniziato()
{
    if (!passo_) {
        passo_ = std::make_unique<Passo>(stato_.documento,
                                         verbo_ + u' ' + stato_.documento.Denominazione(chiave_));
        passo_->SoloSeCambia();
    }
    return *passo_;
}

void PassoDiGesto::Conclude()
{
    passo_.reset();
    sospesa_.reset();
}

void PassoDiGesto::Rinuncia()
{
    if (passo_) {
        passo_->Rinuncia();
    }
    Conclude();
}

double Riportato(double millimetri, double prima)
{
    constexpr double Inezia = 1e-6;
    return std::abs(millimetri - prima) < Inezia ? prima : millimetri;
}
