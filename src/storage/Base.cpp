#include "storage/Base.h"

#include "storage/Completion.h"
#include "storage/Jeu.h"
#include "storage/Pannes.h"
#include "storage/Schema.h"
#include "storage/Verification.h"
#include "storage/messages.h"

#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>
#include <atomic>

namespace storage {

namespace {

constexpr size_t kInstructionsPretes = 32;

QString NouvelleConnexion()
{
    static std::atomic<int> numero = 0;
    return QStringLiteral("scriptelle-%1").arg(++numero);
}

/// The driver stores a null text as null: ours is an empty text.
QVariant Liee(const QVariant& valeur)
{
    const bool texteVide = valeur.typeId() == QMetaType::QString && valeur.toString().isEmpty();
    return texteVide ? QVariant(QStringLiteral("")) : valeur;
}

} // namespace

Base::Base(const QString& chemin, GenreBase genre, Disposition disposition)
    : chemin_(chemin), genre_(genre), connexion_(NouvelleConnexion())
{
    VerifieFichier(chemin);
    try {
        Ouvre();
        VerifieContenu(*this);
        if (disposition == Disposition::Telle) {
            telles_ = TablesDuFichier(*this);
        } else {
            CompleteDisposition(*this);
            VerifieTables(*this);
            CompleteIndexes(*this);
        }
    } catch (...) {
        Ferme();
        throw;
    }
}

Base::~Base()
{
    Ferme();
}

void Base::Ouvre()
{
    base_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connexion_);
    base_.setDatabaseName(chemin_);
    base_.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=3000"));
    if (!base_.open()) {
        throw Panne(messages::BaseIllisible, chemin_);
    }
    Execute(QStringLiteral("pragma journal_mode=delete"));
    Execute(QStringLiteral("pragma synchronous=full"));
}

void Base::Ferme()
{
    pretes_.clear();
    base_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(connexion_);
}

const QList<Table>& Base::Tables() const
{
    return telles_ ? *telles_ : storage::Tables(genre_);
}

const Table* Base::ChercheTable(const QString& nom) const
{
    const auto trouvee = std::ranges::find(Tables(), nom, &Table::Nom);
    return trouvee == Tables().end() ? nullptr : &*trouvee;
}

Jeu Base::Table(const QString& table)
{
    return Jeu(*this, table, {}, {});
}

Jeu Base::Selection(const QString& table, const QString& condition, const QVariantList& valeurs)
{
    return Jeu(*this, table, condition, valeurs);
}

int Base::SupprimeOu(const QString& table, const QString& condition, const QVariantList& valeurs)
{
    const QString instruction = QStringLiteral("delete from %1 where ").arg(Cite(table)) + condition;
    return Lance(instruction, valeurs).numRowsAffected();
}

void Base::Execute(const QString& instruction, const QVariantList& valeurs)
{
    Lance(instruction, valeurs);
}

void Base::Parcourt(const QString& instruction, const QVariantList& valeurs,
                    const std::function<void(const Rangee&)>& lecteur)
{
    // Out of the cache while it runs: the reader may run the same instruction.
    auto prete = pretes_.extract(instruction);
    QSqlQuery requete = prete ? std::move(prete.mapped()) : Prepare(instruction);
    LieEtLance(requete, valeurs);
    const Rangee rangee(requete);
    while (Avance(requete)) {
        lecteur(rangee);
    }
    requete.finish();
    if (pretes_.size() < kInstructionsPretes) {
        pretes_.insert_or_assign(instruction, std::move(requete));
    }
}

QSqlQuery Base::Prepare(const QString& instruction)
{
    QSqlQuery requete(base_);
    requete.setForwardOnly(true);
    if (!requete.prepare(instruction)) {
        throw Panne(requete.lastError(), chemin_);
    }
    return requete;
}

void Base::LieEtLance(QSqlQuery& requete, const QVariantList& valeurs)
{
    if (crochet_ && crochet_(requete.lastQuery())) {
        throw Panne(messages::InstructionRefusee, chemin_);
    }
    for (qsizetype i = 0; i < valeurs.size(); ++i) {
        requete.bindValue(static_cast<int>(i), Liee(valeurs[i]));
    }
    if (!requete.exec()) {
        throw Panne(requete.lastError(), chemin_);
    }
}

QSqlQuery Base::Lance(const QString& instruction, const QVariantList& valeurs)
{
    QSqlQuery requete = Prepare(instruction);
    LieEtLance(requete, valeurs);
    return requete;
}

bool Base::Avance(QSqlQuery& requete)
{
    if (requete.next()) {
        return true;
    }
    if (requete.lastError().isValid()) {
        throw Panne(requete.lastError(), chemin_);
    }
    return false;
}

} // namespace storage
