#include "editor/RigheRilievi.h"

#include <algorithm>

void RigheRilievi::Mostra(const QList<Rilievo> &rilievi)
{
    if (rilievi != rilievi_) {
        beginResetModel();
        rilievi_ = rilievi;
        endResetModel();
    }
}

int RigheRilievi::RigaDi(const Rilievo &rilievo) const
{
    const auto stesso = std::find_if(rilievi_.begin(), rilievi_.end(), [&](const Rilievo &altro) {
        return altro.Specie == rilievo.Specie && altro.Dove == rilievo.Dove &&
               altro.Di == rilievo.Di;
    });
    return stesso == rilievi_.end() ? -1 : static_cast<int>(stesso - rilievi_.begin());
}

int RigheRilievi::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(rilievi_.size());
}

QVariant RigheRilievi::data(const QModelIndex &indice, int ruolo) const
{
    return indice.isValid() && ruolo == Qt::DisplayRole ? rilievi_.at(indice.row()).SuUnaLinea()
                                                        : QVariant();
}
