#include "Ebauche.h"

#include "Defaut.h"

#include <QStringList>

#include <algorithm>

#include <sqlite3.h>

namespace jet {

using storage::Cite;

namespace {

QString InsertDe(const storage::Table& table)
{
    QStringList noms;
    for (const storage::Colonne& colonne : table.Colonnes) {
        noms.append(Cite(colonne.Nom));
    }
    const QStringList places(noms.size(), QStringLiteral("?"));
    return QStringLiteral("insert into %1 (%2) values (%3)")
        .arg(Cite(table.Nom), noms.join(u','), places.join(u','));
}

sqlite3* Cree(const char* chemin)
{
    sqlite3* base = nullptr;
    const int code = sqlite3_open_v2(chemin, &base, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    if (code != SQLITE_OK) {
        sqlite3_close(base);
        throw NonEcrit("cannot create the draft", storage::jet::kLectureSeule);
    }
    return base;
}

} // namespace

void Ebauche::FermeBase::operator()(sqlite3* base) const
{
    sqlite3_close(base);
}

void Ebauche::FermeInstruction::operator()(sqlite3_stmt* instruction) const
{
    sqlite3_finalize(instruction);
}

Ebauche::Ebauche(const char* chemin, storage::GenreBase genre) : base_(Cree(chemin)), genre_(genre)
{
    // Nobody else knows the draft, and nobody needs it after a failure. Who puts it in place flushes it.
    Execute(QStringLiteral("pragma journal_mode = off"));
    Execute(QStringLiteral("pragma synchronous = off"));
    Execute(QStringLiteral("pragma locking_mode = exclusive"));
    Execute(QStringLiteral("begin"));
}

Ebauche::~Ebauche() = default;

void Ebauche::Exige(int code)
{
    switch (code & 0xFF) {
    case SQLITE_OK:
    case SQLITE_ROW:
    case SQLITE_DONE:
        return;
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
    case SQLITE_TOOBIG:
        throw Defaut("a value that no column of ours takes");
    case SQLITE_FULL:
        throw NonEcrit(sqlite3_errmsg(base_.get()), storage::jet::kDisquePlein);
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
        throw NonEcrit(sqlite3_errmsg(base_.get()), storage::jet::kLectureSeule);
    default:
        throw NonEcrit(sqlite3_errmsg(base_.get()), storage::jet::kDisqueEnPanne);
    }
}

Ebauche::Instruction Ebauche::Prepare(const QString& instruction)
{
    sqlite3_stmt* preparee = nullptr;
    const QByteArray texte = instruction.toUtf8();
    Exige(sqlite3_prepare_v2(base_.get(), texte.constData(), static_cast<int>(texte.size()), &preparee,
                             nullptr));
    return Instruction(preparee);
}

void Ebauche::Execute(const QString& instruction)
{
    Exige(sqlite3_step(Prepare(instruction).get()));
}

void Ebauche::Commence(const storage::Table& table)
{
    Execute(storage::CreeTableSql(table));
    insere_ = Prepare(InsertDe(table));
}

void Ebauche::LieEntier(int colonne, std::int64_t valeur)
{
    Exige(sqlite3_bind_int64(insere_.get(), colonne + 1, valeur));
}

void Ebauche::LieReel(int colonne, double valeur)
{
    Exige(sqlite3_bind_double(insere_.get(), colonne + 1, valeur));
}

void Ebauche::LieTexte(int colonne, const std::string& utf8)
{
    Exige(sqlite3_bind_text64(insere_.get(), colonne + 1, utf8.data(), utf8.size(), SQLITE_STATIC,
                              SQLITE_UTF8));
}

void Ebauche::LieOctets(int colonne, const std::string& octets)
{
    Exige(sqlite3_bind_blob64(insere_.get(), colonne + 1, octets.data(), octets.size(), SQLITE_STATIC));
}

void Ebauche::AjouteLigne()
{
    const int code = sqlite3_step(insere_.get());
    Exige(code);
    sqlite3_reset(insere_.get());
    sqlite3_clear_bindings(insere_.get());
}

/// A number of a row that was deleted is not given again.
void Ebauche::Finit(const storage::Table& table, std::int64_t dernier)
{
    insere_.reset();
    if (std::ranges::count(table.Colonnes, storage::TypeColonne::Compteur, &storage::Colonne::Type) == 0) {
        return;
    }
    const QByteArray nom = table.Nom.toUtf8();
    const Instruction suite =
        Prepare(QStringLiteral("update sqlite_sequence set seq = max(seq, ?1) where name = ?2"));
    Exige(sqlite3_bind_int64(suite.get(), 1, dernier));
    Exige(sqlite3_bind_text(suite.get(), 2, nom.constData(), static_cast<int>(nom.size()), SQLITE_STATIC));
    Exige(sqlite3_step(suite.get()));
}

void Ebauche::Acheve(const QList<storage::Table>& tables)
{
    Execute(QStringLiteral("commit"));
    const int version = storage::EstDispositionCourante(tables, genre_) ? storage::kVersionSchema : 0;
    Execute(QStringLiteral("pragma application_id = %1").arg(storage::MarqueApplication(genre_)));
    Execute(QStringLiteral("pragma user_version = %1").arg(version));
    Exige(sqlite3_close(base_.release()));
}

} // namespace jet
