#pragma once

#include "storage/PlanJet.h"
#include "storage/ProtocoleJet.h"

#include <memory>
#include <stdexcept>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace jet {

/// The draft cannot be written, or the disk does not answer; `Code` is what the program ends with.
class NonEcrit : public std::runtime_error
{
public:
    NonEcrit(const char* raison, storage::jet::Code code) : std::runtime_error(raison), Code(code) {}
    storage::jet::Code Code;
};

/// The SQLite file that a conversion makes. Throws `NonEcrit`, and `Defaut` for a value that no column of
/// ours takes.
class Ebauche
{
public:
    /// Creates the file.
    Ebauche(const char* chemin, storage::GenreBase genre);
    ~Ebauche();
    Ebauche(const Ebauche&) = delete;
    Ebauche& operator=(const Ebauche&) = delete;

    /// A table of ours begins.
    void Commence(const storage::Table& table);
    /// The values of one row, by the place of their column from 0; those not given are null. Bytes stay the
    /// caller's until `AjouteLigne`.
    void LieEntier(int colonne, std::int64_t valeur);
    void LieReel(int colonne, double valeur);
    void LieTexte(int colonne, const std::string& utf8);
    void LieOctets(int colonne, const std::string& octets);
    void AjouteLigne();
    /// The table ends; its counter goes on behind `dernier`.
    void Finit(const storage::Table& table, std::int64_t dernier);
    /// Marks the layout and closes.
    void Acheve(const QList<storage::Table>& tables);

private:
    struct FermeBase
    {
        void operator()(sqlite3* base) const;
    };
    struct FermeInstruction
    {
        void operator()(sqlite3_stmt* instruction) const;
    };
    using Instruction = std::unique_ptr<sqlite3_stmt, FermeInstruction>;

    Instruction Prepare(const QString& instruction);
    void Execute(const QString& instruction);
    void Exige(int code);

    std::unique_ptr<sqlite3, FermeBase> base_;
    Instruction insere_;
    storage::GenreBase genre_;
};

} // namespace jet
