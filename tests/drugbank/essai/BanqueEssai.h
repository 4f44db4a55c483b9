#pragma once

#include "essai/Journal.h"
#include "essai/Poignees.h"
#include "essai/Reponses.h"

namespace essai {

/// The state of the bank library of the tests. A description may hold, beside the fields of `Reponses`, the
/// object `reponses`: for the name of a service the very record of each key, or of "*" for any key; and
/// `longueur`, what `StringLength` answers to every text; and `evenements`, the function that lets the window
/// events of the program through.
class BanqueEssai
{
public:
    explicit BanqueEssai(const QJsonObject& description);
    /// The bank of this library, made on the first call.
    static BanqueEssai& La();

    /// Writes down a call that hands no handle out.
    void Note(const char* fonction, const QJsonArray& arguments);
    /// Hands out a record.
    drugbank::Poignee Donne(const char* fonction, const QJsonArray& arguments, const QJsonValue& contenu);
    /// The record that `reponses` has for a service, else what `sinon` answers.
    template <typename Sinon>
    drugbank::Poignee Repond(const char* fonction, const QJsonArray& arguments, const char* service,
                             const QByteArray& cle, const Sinon& sinon)
    {
        const QJsonValue table = reponses_.value(QLatin1String(service));
        return Donne(fonction, arguments, table.isObject() ? Dite(table.toObject(), cle) : sinon());
    }
    void Libere(const char* fonction, drugbank::Poignee poignee);

    /// A start: the session takes its handle.
    void Commence(drugbank::Poignee* session);
    /// The status of a background start, 14 as often as the description says.
    drugbank::Entier Etape();
    /// Seconds since 1970.
    std::int64_t Expiration() const;
    drugbank::Entier Longueur(drugbank::TexteBanque texte) const;
    QByteArray Version() const;
    drugbank::Entier Statut(const char* champ) const;

    essai::Poignees Poignees;
    essai::Reponses Reponses;

private:
    void LaisseEvenements(const char* fonction) const;
    static QJsonValue Dite(const QJsonObject& table, const QByteArray& cle);

    QJsonObject description_;
    QJsonObject reponses_;
    Journal journal_;
    int restantes_ = 0;
};

} // namespace essai
