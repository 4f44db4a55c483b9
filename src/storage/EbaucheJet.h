#pragma once

#include "storage/Genre.h"

#include <QByteArray>
#include <QHash>
#include <QString>

namespace storage {

/// The new file of a conversion, beside the old one, and what its reader says of it. It is removed at the end
/// unless it has taken the old one's name.
class EbaucheJet
{
public:
    explicit EbaucheJet(const QString& chemin);
    ~EbaucheJet();
    EbaucheJet(const EbaucheJet&) = delete;
    EbaucheJet& operator=(const EbaucheJet&) = delete;

    const QString& Chemin() const { return ebauche_; }

    /// Takes a piece of the reader's output. False when it is none.
    bool Recoit(const QByteArray& morceau);

    const QString& TableEnCours() const { return table_; }
    qint64 Lues() const { return lues_; }
    qint64 Attendues() const { return declarees_.value(table_); }
    bool Entiere() const { return finie_; }
    bool SansTable() const { return declarees_.isEmpty(); }

    /// Whether the draft opens as a database of ours and has the rows that the Jet file declares.
    bool EstSaine(GenreBase genre) const;

private:
    bool TraiteLigne(const QByteArray& ligne);

    QString ebauche_;
    QByteArray tampon_;
    QHash<QString, qint64> declarees_;
    QString table_;
    qint64 lues_ = 0;
    bool finie_ = false;
};

} // namespace storage
