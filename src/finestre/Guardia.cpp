#include "finestre/Guardia.h"

#include "base/ErroreSistema.h"
#include "finestre/Messaggi.h"

#include <new>

void SegnalaErrore(QWidget *padre)
{
    try {
        throw;
    } catch (const ErroreSistema &errore) {
        Messaggi::Mostra(padre, errore.Messaggio());
    } catch (const std::bad_alloc &) {
        Messaggi::Mostra(padre, ErroreSistema(ErroreSistema::MemoriaEsaurita).Messaggio());
    } catch (const std::exception &errore) {
        Messaggi::Mostra(padre, ErroreSistema(ErroreSistema::ErroreInterno,
                                              QString::fromLocal8Bit(errore.what()))
                                    .Messaggio());
    } catch (...) {
        Messaggi::Mostra(padre, ErroreSistema(ErroreSistema::ErroreInterno).Messaggio());
    }
}
