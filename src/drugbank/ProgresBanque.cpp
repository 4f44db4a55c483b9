#include "drugbank/ProgresBanque.h"

#include "bank/Sources.h"

#include <QDir>
#include <algorithm>

namespace drugbank {

ProgresBanque::ProgresBanque(const QString& dossier, const QString& thesaurus)
{
    const QStringList connus = banque::NomsDesSources();
    for (const QFileInfo& fichier : QDir(dossier).entryInfoList(QDir::Files)) {
        if (connus.contains(fichier.fileName(), Qt::CaseInsensitive)) {
            tailles_.insert(fichier.fileName(), fichier.size());
        }
    }
    if (!thesaurus.isEmpty()) {
        tailles_.insert(QFileInfo(thesaurus).fileName(), QFileInfo(thesaurus).size());
    }
    for (const qint64 taille : std::as_const(tailles_)) {
        total_ += taille;
    }
}

int ProgresBanque::Prend(const QString& fichier, qint64 faites, qint64 total)
{
    if (fichier != fichier_) {
        finis_ += tailles_.value(fichier_);
        fichier_ = fichier;
    }
    const double part = total > 0 ? static_cast<double>(faites) / static_cast<double>(total) : 0;
    const double lus = static_cast<double>(finis_) + part * static_cast<double>(tailles_.value(fichier));
    const int rapport = total_ > 0 ? static_cast<int>(lus * kTotal / static_cast<double>(total_)) : 0;
    part_ = std::clamp(rapport, part_, kTotal);
    return part_;
}

} // namespace drugbank
