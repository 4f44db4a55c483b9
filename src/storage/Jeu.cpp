#include "storage/Jeu.h"

#include "common/Nombres.h"
#include "storage/Base.h"
#include "storage/Pannes.h"
#include "storage/Schema.h"
#include "storage/messages.h"

#include <QSqlQuery>

#include <algorithm>

namespace storage {

namespace {

QStringList Noms(const Table& table)
{
    QStringList noms;
    for (const Colonne& colonne : table.Colonnes) {
        noms.append(Cite(colonne.Nom));
    }
    return noms;
}

QString SelectDe(const Table& table, const QString& condition)
{
    const QString ou = condition.isEmpty() ? QString() : QStringLiteral(" where ") + condition;
    return QStringLiteral("select rowid, %1 from %2").arg(Noms(table).join(u','), Cite(table.Nom)) + ou +
           QStringLiteral(" order by rowid");
}

/// The value as its column keeps it: yes as 1, and a single by its decimal form, 12.1 and not 12.1000004.
QVariant ValeurDe(TypeColonne type, const QVariant& valeur)
{
    if (!valeur.isValid()) {
        return valeur;
    }
    if (type == TypeColonne::OuiNon) {
        return valeur.toBool() ? 1 : 0;
    }
    return type == TypeColonne::Simple ? common::TexteSimple(valeur.toFloat()).toDouble() : valeur;
}

} // namespace

Jeu::Jeu(Base& base, const QString& table, const QString& condition, const QVariantList& valeurs)
    : base_(&base), table_(base.ChercheTable(table))
{
    if (!table_) {
        throw Panne(messages::InstructionRefusee, base.Chemin());
    }
    const qsizetype nombre = table_->Colonnes.size();
    QSqlQuery requete = base.Lance(SelectDe(*table_, condition), valeurs);
    while (base.Avance(requete)) {
        Ligne ligne{requete.value(0).toLongLong(), QVariantList(nombre)};
        for (int i = 0; i < nombre; ++i) {
            ligne.Champs[i] = requete.isNull(i + 1) ? QVariant() : requete.value(i + 1);
        }
        lignes_.append(std::move(ligne));
    }
}

void Jeu::VaA(qsizetype ligne)
{
    courante_ = ligne;
    effacee_ = false;
    ecriture_ = Ecriture::Aucune;
}

void Jeu::ExigeLigne() const
{
    if (!SurUneLigne()) {
        throw Panne(messages::FicheDisparue, base_->Chemin());
    }
}

QVariant Jeu::Champ(int position) const
{
    if (ecriture_ != Ecriture::Aucune) {
        return enCours_.Champs.value(position);
    }
    return SurUneLigne() ? lignes_[courante_].Champs.value(position) : QVariant();
}

int Jeu::PlaceCompteur() const
{
    const auto compteur = std::ranges::find(table_->Colonnes, TypeColonne::Compteur, &Colonne::Type);
    return compteur == table_->Colonnes.end() ? -1 : static_cast<int>(compteur - table_->Colonnes.begin());
}

qint64 Jeu::NumeroSuivant() const
{
    qint64 dernier = 0;
    base_->Parcourt(QStringLiteral("select max(ifnull((select max(rowid) from %1), 0), "
                                   "ifnull((select seq from sqlite_sequence where name = ?), 0))")
                        .arg(Cite(table_->Nom)),
                    {table_->Nom}, [&](const Rangee& rangee) { dernier = rangee.Entier(0); });
    return dernier + 1;
}

void Jeu::AddNew()
{
    const qsizetype nombre = table_->Colonnes.size();
    Ligne nouvelle{0, QVariantList(nombre)};
    for (qsizetype i = 0; i < nombre; ++i) {
        if (table_->Colonnes[i].Type == TypeColonne::OuiNon) {
            nouvelle.Champs[i] = 0;
        }
    }
    if (const int compteur = PlaceCompteur(); compteur >= 0) {
        nouvelle.Champs[compteur] = NumeroSuivant();
    }
    enCours_ = std::move(nouvelle);
    ecriture_ = Ecriture::Ajout;
}

void Jeu::Edit()
{
    ExigeLigne();
    enCours_ = lignes_[courante_];
    ecrits_ = QBitArray(enCours_.Champs.size());
    ecriture_ = Ecriture::Changement;
}

void Jeu::Ecris(int position, const QVariant& valeur)
{
    if (ecriture_ == Ecriture::Aucune || position < 0 || position >= enCours_.Champs.size()) {
        throw Panne(messages::InstructionRefusee, base_->Chemin());
    }
    enCours_.Champs[position] = ValeurDe(table_->Colonnes[position].Type, valeur);
    if (ecriture_ == Ecriture::Changement) {
        ecrits_.setBit(position);
    }
}

void Jeu::Update()
{
    switch (ecriture_) {
    case Ecriture::Aucune:
        throw Panne(messages::InstructionRefusee, base_->Chemin());
    case Ecriture::Ajout:
        Insere();
        break;
    case Ecriture::Changement:
        Change();
        break;
    }
    ecriture_ = Ecriture::Aucune;
}

void Jeu::Insere()
{
    const QStringList inconnues(enCours_.Champs.size(), QStringLiteral("?"));
    const QString instruction = QStringLiteral("insert into %1 (%2) values (%3)")
                                    .arg(Cite(table_->Nom), Noms(*table_).join(u','), inconnues.join(u','));
    enCours_.Cle = base_->Lance(instruction, enCours_.Champs).lastInsertId().toLongLong();
    lignes_.append(enCours_);
}

void Jeu::Change()
{
    const QStringList noms = Noms(*table_);
    QStringList affectations;
    QVariantList valeurs;
    for (qsizetype i = 0; i < noms.size(); ++i) {
        if (ecrits_.testBit(i)) {
            affectations.append(noms[i] + QStringLiteral(" = ?"));
            valeurs.append(enCours_.Champs[i]);
        }
    }
    if (affectations.isEmpty()) {
        return;
    }
    valeurs.append(enCours_.Cle);
    const QString instruction =
        QStringLiteral("update %1 set %2 where rowid = ?").arg(Cite(table_->Nom), affectations.join(u','));
    if (base_->Lance(instruction, valeurs).numRowsAffected() == 0) {
        throw Panne(messages::FicheDisparue, base_->Chemin());
    }
    if (const int compteur = PlaceCompteur(); compteur >= 0) {
        enCours_.Cle = enCours_.Champs[compteur].toLongLong();
    }
    lignes_[courante_] = enCours_;
}

void Jeu::Delete()
{
    ExigeLigne();
    const QString instruction = QStringLiteral("delete from %1 where rowid = ?").arg(Cite(table_->Nom));
    base_->Execute(instruction, {lignes_[courante_].Cle});
    lignes_.removeAt(courante_);
    ecriture_ = Ecriture::Aucune;
    effacee_ = true;
}

} // namespace storage
