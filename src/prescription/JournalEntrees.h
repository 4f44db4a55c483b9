#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

namespace prescription {

/// What a journal says, one record a line, in the order of the file and numbered from 0. The file's bytes are
/// kept as they are and read when a record is asked for, so that a million of them cost little. Of a field
/// or a line that no prescription could fill, the texts give the beginning.
class JournalEntrees
{
public:
    /// Called now and then with the bytes read so far and their number in all.
    using Avancement = std::function<void(qint64 lus, qint64 total)>;

    /// Takes the records of a file in place of the former ones. A line that is no record of the journal is
    /// one all the same, with what it has. False when the file could not be read to its end: the records
    /// read until then are kept.
    bool Lit(const QString& chemin, const Avancement& avancement = {});

    int Nombre() const { return static_cast<int>(lignes_.size()); }
    bool Vide() const { return lignes_.empty(); }

    /// The first field, as it stands.
    QString Date(int numero) const;
    /// The second field, three blanks and the third one in brackets: the name and the birth date.
    QString Patient(int numero) const;
    /// The fields behind, each on a line of its own behind two blanks, with a line end before and after it.
    QString Prescription(int numero) const;

    /// The first record of each date, by year, month and day; what is no date is sorted as text.
    std::vector<int> Dates() const;
    /// The first record of each patient, by name. A name with another birth date is another patient.
    std::vector<int> Patients() const;
    /// The records of the same date as this one, by patient; those of one patient in their order.
    std::vector<int> DuJour(int numero) const;
    /// The records of the same patient as this one, by date; those of one date in their order.
    std::vector<int> DuPatient(int numero) const;

private:
    struct Ligne
    {
        qsizetype Debut = 0;
        quint32 Date = 0; ///< places in `dates_` and `patients_`
        quint32 Patient = 0;
    };
    /// A date or a patient that some record bears.
    struct Valeur
    {
        int Premiere = 0;  ///< its first record
        quint32 Place = 0; ///< in the sorted list
    };
    class Releve;

    void Depouille(qsizetype fin, Releve& releve);
    void ClasseDates();
    void ClassePatients();
    QByteArrayView Texte(int numero) const;
    std::vector<int> Semblables(int numero, quint32 Ligne::*cle, quint32 Ligne::*ordre,
                                const std::vector<Valeur>& places) const;
    static std::vector<int> Premieres(const std::vector<Valeur>& valeurs);

    QByteArray contenu_;
    std::vector<Ligne> lignes_;
    std::vector<Valeur> dates_;
    std::vector<Valeur> patients_;
    qsizetype depouille_ = 0; ///< how far the lines are known
};

/// The doctor whose journal a file is, by its name "Journal_" ... ".log".
QString MedecinDuJournal(const QString& chemin);

} // namespace prescription
