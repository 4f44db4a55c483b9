#include "storage/EbaucheJet.h"

#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "storage/Base.h"
#include "storage/ProtocoleJet.h"

#include <QUuid>

namespace storage {

namespace {

/// A line of the reader is short: a longer one is another program's.
constexpr qsizetype kLigneMax = 4096;

} // namespace

EbaucheJet::EbaucheJet(const QString& chemin)
    : ebauche_(chemin + u'.' + QUuid::createUuid().toString(QUuid::WithoutBraces) + QStringLiteral(".tmp"))
{}

EbaucheJet::~EbaucheJet()
{
    // A left draft is no loss.
    common::Tolere([&] { common::SupprimeFichier(ebauche_); });
}

bool EbaucheJet::Recoit(const QByteArray& morceau)
{
    tampon_.append(morceau);
    qsizetype debut = 0;
    for (qsizetype fin = tampon_.indexOf('\n'); fin >= 0; fin = tampon_.indexOf('\n', debut)) {
        if (!TraiteLigne(tampon_.sliced(debut, fin - debut))) {
            return false;
        }
        debut = fin + 1;
    }
    tampon_.remove(0, debut);
    return tampon_.size() <= kLigneMax;
}

bool EbaucheJet::TraiteLigne(const QByteArray& ligne)
{
    const QByteArrayList champs = ligne.split('\t');
    bool nombre = true;
    if (finie_) {
        return false;
    }
    if (champs.size() == 3 && champs[0] == jet::kTable) {
        table_ = QString::fromUtf8(champs[1]);
        lues_ = 0;
        nombre = !declarees_.contains(table_);
        declarees_.insert(table_, champs[2].toLongLong());
    } else if (champs.size() == 2 && champs[0] == jet::kLignes) {
        lues_ = champs[1].toLongLong(&nombre);
    } else {
        finie_ = champs.size() == 1 && champs[0] == jet::kFin;
        nombre = finie_;
    }
    return nombre;
}

bool EbaucheJet::EstSaine(GenreBase genre) const
{
    bool saine = true;
    const bool lue = common::Tolere([&] {
        Base base(ebauche_, genre, Disposition::Telle);
        for (auto declaree = declarees_.cbegin(); declaree != declarees_.cend(); ++declaree) {
            base.Parcourt(QStringLiteral("select count(*) from ") + Cite(declaree.key()), {},
                          [&](const Rangee& rangee) { saine = saine && rangee.Entier(0) == *declaree; });
        }
    });
    // What the draft fails with bears the draft's name: it says nothing to the doctor.
    return lue && saine;
}

} // namespace storage
