#include "upgrade/Source.h"

#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "upgrade/messages.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <numeric>

namespace upgrade {

namespace {

/// The file's header, in which the engine counts the changes, and its size.
QByteArray Empreinte(const QString& chemin)
{
    constexpr qint64 kEntete = 100;
    QFile fichier(chemin);
    const bool ouvert = fichier.open(QIODevice::ReadOnly);
    return ouvert ? fichier.read(kEntete) + QByteArray::number(fichier.size()) : QByteArray();
}

} // namespace

Source::Source(const QString& chemin, storage::GenreBase genre) : chemin_(chemin)
{
    {
        storage::Base base(chemin, genre, storage::Disposition::Telle);
        // Rolled back at once: the engine begins to write only with a statement that does.
        const storage::Transaction essai(base);
        base.Execute(QStringLiteral("pragma application_id = %1").arg(storage::MarqueApplication(genre)));
        tables_ = base.Tables();
        for (const storage::Table& table : tables_) {
            base.Parcourt(QStringLiteral("select count(*) from ") + storage::Cite(table.Nom), {},
                          [&](const storage::Rangee& rangee) { lignes_[table.Nom] = rangee.Entier(0); });
        }
    }
    empreinte_ = Empreinte(chemin);
}

const storage::Table* Source::ChercheTable(const QString& nom) const
{
    const auto trouvee = std::ranges::find_if(tables_, [&](const storage::Table& table) {
        return table.Nom.compare(nom, Qt::CaseInsensitive) == 0;
    });
    return trouvee == tables_.end() ? nullptr : &*trouvee;
}

qint64 Source::Lignes() const
{
    const QList<qint64> nombres = lignes_.values();
    return std::accumulate(nombres.begin(), nombres.end(), qint64{0});
}

void Source::ExigeInchangee() const
{
    if (Empreinte(chemin_) != empreinte_) {
        throw common::Erreur(messages::ChangeePendant(QFileInfo(chemin_).fileName()),
                             common::CheminAffiche(chemin_));
    }
}

} // namespace upgrade
