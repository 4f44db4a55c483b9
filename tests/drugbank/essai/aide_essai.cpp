// A helper library that tells from the description beside it which products are installed, and where the bank
// is: `{produits: {2: true}, banque: path, journal: path}`. It reads it anew at each call.
#include "essai/Emplacement.h"
#include "essai/Journal.h"

#include <cstring>

namespace {

constexpr drugbank::Entier kAbsent = 1;

bool Installe(const QJsonObject& description, drugbank::Entier produit)
{
    return description.value(QLatin1String("produits")).toObject().value(QString::number(produit)).toBool();
}

} // namespace

extern "C" Q_DECL_EXPORT drugbank::Entier DRUGBANK_APPEL
VidalHelper_getVidalAPIPath(drugbank::Entier produit, char* tampon, drugbank::Entier longueur)
{
    const QJsonObject description = essai::LitDescription();
    essai::Journal journal(description.value(QLatin1String("journal")).toString());
    journal.Note(__func__, {produit, QJsonValue::Null, longueur});
    if (!Installe(description, produit)) {
        return kAbsent;
    }
    const QByteArray chemin =
        QFile::encodeName(description.value(QLatin1String("banque")).toString()).left(longueur);
    std::memset(tampon, 0, static_cast<std::size_t>(longueur));
    std::memcpy(tampon, chemin.constData(), static_cast<std::size_t>(chemin.size()));
    return 0;
}
