#pragma once

#include <QSqlQuery>
#include <QVariant>

class QSqlDatabase;

namespace banque {

/// A prepared reading of a bank. Every failure is thrown as `common::Erreur`: that of a row too, so that
/// what was read of a damaged or vanished file never passes for all of it.
class Selection
{
public:
    /// An open bank, which outlives this.
    Selection(const QSqlDatabase& base, const QString& instruction);

    /// Calls `fait` with each row. The values are those of the question marks, in their order.
    template <typename Fait> void PourChaque(const QVariantList& valeurs, Fait&& fait)
    {
        Lance(valeurs);
        while (Suivante()) {
            fait(std::as_const(requete_));
        }
    }
    template <typename Fait> void PourChaque(Fait&& fait) { PourChaque({}, fait); }

    /// The first column of the first row; an invalid value without one.
    QVariant Valeur(const QVariantList& valeurs = {});

private:
    void Lance(const QVariantList& valeurs);
    bool Suivante();
    [[noreturn]] void Echoue() const;

    QString chemin_;
    QSqlQuery requete_;
};

} // namespace banque
