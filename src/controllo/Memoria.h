#pragma once

#include <QHash>

#include <utility>

/// Answers that take long, remembered as long as every round asks for them again: what a whole
/// round has not wanted is forgotten at its end, so that nothing piles up while a text is typed.
template <typename Domanda, typename Risposta>
class Memoria
{
public:
    template <typename Ricerca>
    const Risposta &Di(const Domanda &domanda, Ricerca &&ricerca)
    {
        if (const auto nota = ora_.constFind(domanda); nota != ora_.constEnd()) {
            return *nota;
        }
        const auto prima = prima_.constFind(domanda);
        return *ora_.insert(domanda, prima != prima_.constEnd() ? *prima : ricerca());
    }

    void FineGiro() { prima_ = std::exchange(ora_, {}); }
    void Dimentica()
    {
        prima_.clear();
        ora_.clear();
    }

private:
    QHash<Domanda, Risposta> ora_;
    QHash<Domanda, Risposta> prima_;
};
