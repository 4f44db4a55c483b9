#include "medication/Document.h"

#include "common/Fichiers.h"
#include "drugbank/Banque.h"
#include "medication/Noeud.h"
#include "medication/messages.h"
#include "startup/Chemins.h"

#include <QStringList>
#include <QUrl>

namespace medication {

namespace {

bool EstUnPack(const Noeud& noeud)
{
    return noeud.Etiquette.contains(u'/');
}

qint32 IdDuPack(const Noeud& noeud)
{
    return noeud.Etiquette.section(u'/', 1, 1).toInt();
}

QString LigneDe(const drugbank::Document& document)
{
    QStringList mots = {document.Type, document.Nom};
    mots.removeAll(QString());
    return mots.join(QStringLiteral(" : "));
}

} // namespace

QString AdresseSansDocument(const startup::Chemins& chemins)
{
    const QString page = common::Joint(chemins.CheminProgramme, QStringLiteral("zeromono.htm"));
    return QUrl::fromLocalFile(page).toString(QUrl::FullyEncoded);
}

std::optional<QString> AdresseDuDocument(const drugbank::Banque& banque, const startup::Chemins& chemins,
                                         const Noeud& noeud)
{
    if (!EstUnPack(noeud)) {
        return AdresseSansDocument(chemins);
    }
    const std::shared_ptr<drugbank::AccesBanque> acces = banque.Acces;
    if (!acces) {
        return std::nullopt;
    }
    const QString monographie = acces->Monographie(IdDuPack(noeud)).trimmed();
    return monographie.isEmpty() ? AdresseSansDocument(chemins) : monographie;
}

QString ListeDesDocuments(const drugbank::Banque& banque, const Noeud& noeud)
{
    const std::shared_ptr<drugbank::AccesBanque> acces = banque.Acces;
    if (EstUnPack(noeud) && !acces) {
        return messages::BanqueFermee();
    }
    QStringList lignes;
    if (EstUnPack(noeud)) {
        for (const drugbank::Document& document : acces->Documents(IdDuPack(noeud))) {
            lignes.append(LigneDe(document));
        }
    }
    return lignes.isEmpty() ? messages::SansDocumentListe() : lignes.join(u'\n');
}

} // namespace medication
