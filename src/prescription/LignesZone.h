#pragma once

#include <QAbstractListModel>

namespace prescription {

/// One row of a zone: its text (two blanks, title, run of blanks, identifier) and its item data,
/// the index of its entry in the zone's array.
struct Ligne
{
    QString Texte;
    int Indice = 0;
    bool EstUnCode = false; ///< its identifier is a code from before product ids were stored
    bool operator==(const Ligne&) const = default;
};

/// The rows of one zone, in the order of the page. `LstChoix1` and `LstChoix2` show it.
/// Qt::DisplayRole gives the text, Qt::UserRole the item data.
class LignesZone : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    const QList<Ligne>& Lignes() const { return lignes_; }
    bool Vide() const { return lignes_.isEmpty(); }
    void Ajoute(const Ligne& ligne) { AjouteToutes({ligne}); }
    void AjouteToutes(const QList<Ligne>& lignes);
    void Retire(int rang);
    /// Moves a row one place: `vers` is `rang` - 1 or `rang` + 1. A place outside the list changes nothing.
    void Deplace(int rang, int vers);
    void Efface();

private:
    QList<Ligne> lignes_;
};

/// A stored title as the doctor meets it: "##", the line jump, is "#".
QString TitreMontre(const QString& titre);
/// The text of a row: two blanks, the title as shown, that many blanks, the identifier.
QString TexteDeLigne(const QString& titre, int blancs, const QString& identifiant);
/// The identifier at the end of a row: its last ten characters, trimmed. Empty when it goes on before them:
/// the end of a longer code would be that of another product.
QString IdentifiantDeLigne(const QString& texte);
/// The code at the end of a row, up to thirty characters, when it is a medication's code of an old version
/// instead of a product id; empty for any other row.
QString CodeAncien(const Ligne& ligne);
/// The title in a row: what stays without the last thirty characters, trimmed.
QString TitreDeLigne(const QString& texte);

} // namespace prescription
