#pragma once

#include <QList>
#include <QString>

namespace banque {

/// The public files, under their published names.
namespace sources {
inline constexpr QLatin1String kSpecialites("CIS_bdpm.txt");
inline constexpr QLatin1String kPresentations("CIS_CIP_bdpm.txt");
inline constexpr QLatin1String kCompositions("CIS_COMPO_bdpm.txt");
inline constexpr QLatin1String kGroupes("CIS_GENER_bdpm.txt");
inline constexpr QLatin1String kConditions("CIS_CPD_bdpm.txt");
inline constexpr QLatin1String kDisponibilites("CIS_CIP_Dispo_Spec.txt");
inline constexpr QLatin1String kMitm("CIS_MITM.txt");
inline constexpr QLatin1String kLiensAvis("HAS_LiensPageCT_bdpm.txt");
inline constexpr QLatin1String kAvisSmr("CIS_HAS_SMR_bdpm.txt");
inline constexpr QLatin1String kAvisAsmr("CIS_HAS_ASMR_bdpm.txt");
} // namespace sources

/// The files that no bank can miss.
const QStringList& SourcesExigees();
/// Those that a bank can do without.
const QStringList& SourcesFacultatives();
/// Both.
inline QStringList NomsDesSources()
{
    return SourcesExigees() + SourcesFacultatives();
}

/// The files of a directory, found whatever the case of their names.
class Sources
{
public:
    /// Throws `Erreur` when the directory or a file that no bank can miss is absent.
    explicit Sources(const QString& dossier);

    /// The path of a file; empty when it is absent.
    QString Chemin(const QString& nom) const;
    /// Files that are unknown, or absent though a bank can do without them: a sentence each. `thesaurus` is
    /// read besides, and may lie there too.
    QStringList Avertissements(const QString& thesaurus = {}) const;

private:
    QString dossier_;
    QStringList presents_;
};

} // namespace banque
