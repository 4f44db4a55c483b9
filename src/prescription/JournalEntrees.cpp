#include "prescription/JournalEntrees.h"

#include "common/CleDeTri.h"
#include "common/Texte8.h"
#include "common/TriParCle.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace prescription {

namespace {

constexpr char kSeparateur = '*';
constexpr int kChampsAvant = 3; ///< date, name, birth date
constexpr qint64 kTranche = 4 << 20;
/// Of a file that is no journal, a line may be the whole: what is shown of one has an end.
constexpr qsizetype kChampMontre = 1'000;
constexpr qsizetype kTexteMontre = 1 << 20;

/// The beginning of a field, counted from 0; nothing when the line has fewer.
qsizetype DebutChamp(QByteArrayView ligne, int champ)
{
    qsizetype debut = 0;
    for (int i = 0; i < champ; ++i) {
        const qsizetype fin = ligne.indexOf(kSeparateur, debut);
        if (fin < 0) {
            return -1;
        }
        debut = fin + 1;
    }
    return debut;
}

QByteArrayView Champ(QByteArrayView ligne, int champ)
{
    const qsizetype debut = DebutChamp(ligne, champ);
    if (debut < 0) {
        return {};
    }
    const qsizetype fin = ligne.indexOf(kSeparateur, debut);
    return ligne.sliced(debut, (fin < 0 ? ligne.size() : fin) - debut);
}

/// Name and birth date, as they stand beside each other.
QByteArrayView Identite(QByteArrayView ligne)
{
    const qsizetype debut = DebutChamp(ligne, 1);
    if (debut < 0) {
        return {};
    }
    const qsizetype fin = DebutChamp(ligne, kChampsAvant);
    const QByteArrayView identite = ligne.sliced(debut, (fin < 0 ? ligne.size() : fin - 1) - debut);
    return identite.endsWith(kSeparateur) ? identite.chopped(1) : identite; // no birth date
}

bool EstUneDate(QStringView date)
{
    const auto chiffres = [&](qsizetype debut, qsizetype nombre) {
        return std::ranges::all_of(date.sliced(debut, nombre),
                                   [](QChar c) { return c >= u'0' && c <= u'9'; });
    };
    return date.size() == 10 && date[2] == u'/' && date[5] == u'/' && chiffres(0, 2) && chiffres(3, 2) &&
           chiffres(6, 4);
}

/// aaaa/mm/jj, which sorts as text.
QString CleDeDate(const QString& date)
{
    return EstUneDate(date) ? date.mid(6) + u'/' + date.mid(3, 2) + u'/' + date.left(2) : date;
}

QString Montre(QByteArrayView champ)
{
    return common::DepuisWindows1252(champ.first(std::min(kChampMontre, champ.size())));
}

std::string_view EnVue(QByteArrayView octets)
{
    return {octets.data(), static_cast<std::size_t>(octets.size())};
}

} // namespace

/// The dates and patients met so far.
class JournalEntrees::Releve
{
public:
    /// Both outlive this.
    Releve(std::vector<Valeur>& dates, std::vector<Valeur>& patients) : dates_(dates), patients_(patients) {}

    quint32 Date(QByteArrayView texte, int numero) { return Place(dates_, placesDates_, texte, numero); }
    quint32 Patient(QByteArrayView texte, int numero)
    {
        return Place(patients_, placesPatients_, texte, numero);
    }

private:
    using Places = std::unordered_map<std::string_view, quint32>;

    static quint32 Place(std::vector<Valeur>& valeurs, Places& places, QByteArrayView texte, int numero)
    {
        const auto [place, nouvelle] = places.try_emplace(EnVue(texte), static_cast<quint32>(valeurs.size()));
        if (nouvelle) {
            valeurs.push_back({numero});
        }
        return place->second;
    }

    std::vector<Valeur>& dates_;
    std::vector<Valeur>& patients_;
    Places placesDates_;
    Places placesPatients_;
};

bool JournalEntrees::Lit(const QString& chemin, const Avancement& avancement)
{
    *this = {};
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly)) {
        return false;
    }
    // Taken once in its whole length, for the texts of the file are pointed at, with an end for its last
    // line.
    const qint64 total = fichier.size();
    contenu_.resize(total + 1);
    Releve releve(dates_, patients_);
    qint64 lus = 0;
    while (lus < total) {
        const qint64 recus = fichier.read(contenu_.data() + lus, std::min(kTranche, total - lus));
        if (recus <= 0) {
            break;
        }
        lus += recus;
        Depouille(lus, releve);
        if (avancement) {
            avancement(lus, total);
        }
    }
    contenu_[lus] = '\n';
    contenu_.truncate(lus + 1);
    if (depouille_ < lus) {
        Depouille(lus + 1, releve);
    }
    ClasseDates();
    ClassePatients();
    return lus == total;
}

void JournalEntrees::Depouille(qsizetype fin, Releve& releve)
{
    const QByteArrayView lus = QByteArrayView(contenu_).first(fin);
    for (qsizetype suite = lus.indexOf('\n', depouille_); suite >= 0; suite = lus.indexOf('\n', depouille_)) {
        const int numero = Nombre();
        lignes_.push_back({depouille_});
        const QByteArrayView texte = Texte(numero);
        lignes_.back().Date = releve.Date(Champ(texte, 0), numero);
        lignes_.back().Patient = releve.Patient(Identite(texte), numero);
        depouille_ = suite + 1;
    }
}

QByteArrayView JournalEntrees::Texte(int numero) const
{
    const qsizetype debut = lignes_[static_cast<std::size_t>(numero)].Debut;
    qsizetype fin = contenu_.indexOf('\n', debut);
    if (fin > debut && contenu_[fin - 1] == '\r') {
        --fin;
    }
    return QByteArrayView(contenu_).sliced(debut, fin - debut);
}

QString JournalEntrees::Date(int numero) const
{
    return Montre(Champ(Texte(numero), 0));
}

QString JournalEntrees::Patient(int numero) const
{
    const QByteArrayView texte = Texte(numero);
    return Montre(Champ(texte, 1)) + QStringLiteral("   (") + Montre(Champ(texte, 2)) + u')';
}

QString JournalEntrees::Prescription(int numero) const
{
    const QByteArrayView texte = Texte(numero);
    const qsizetype debut = DebutChamp(texte, kChampsAvant);
    QString prescription;
    if (debut >= 0) {
        const qsizetype longueur = std::min(kTexteMontre, texte.size() - debut);
        const QString champs = common::DepuisWindows1252(texte.sliced(debut, longueur));
        for (const QString& champ : champs.split(QLatin1Char(kSeparateur))) {
            prescription += QStringLiteral("\r\n  ") + champ + QStringLiteral("\r\n");
        }
    }
    return prescription;
}

void JournalEntrees::ClasseDates()
{
    std::vector<std::pair<QString, quint32>> cles;
    cles.reserve(dates_.size());
    for (const Valeur& valeur : dates_) {
        cles.emplace_back(CleDeDate(Date(valeur.Premiere)), static_cast<quint32>(cles.size()));
    }
    std::ranges::sort(cles);
    for (std::size_t place = 0; place < cles.size(); ++place) {
        dates_[cles[place].second].Place = static_cast<quint32>(place);
    }
}

void JournalEntrees::ClassePatients()
{
    struct Rangee
    {
        quint64 Cle = 0;
        QString Nom;
        quint32 Valeur = 0;
    };
    std::vector<Rangee> rangees;
    rangees.reserve(patients_.size());
    for (const Valeur& valeur : patients_) {
        QString nom = Patient(valeur.Premiere);
        const quint64 cle = common::Cle(nom).Repliee;
        rangees.push_back({cle, std::move(nom), static_cast<quint32>(rangees.size())});
    }
    common::TrieParCle(rangees, &Rangee::Cle, [](const Rangee& a, const Rangee& b) {
        const auto ordre = common::CompareReplie(a.Nom, b.Nom);
        return ordre != 0 ? ordre < 0 : a.Nom < b.Nom;
    });
    for (std::size_t place = 0; place < rangees.size(); ++place) {
        patients_[rangees[place].Valeur].Place = static_cast<quint32>(place);
    }
}

std::vector<int> JournalEntrees::Premieres(const std::vector<Valeur>& valeurs)
{
    std::vector<int> premieres(valeurs.size());
    for (const Valeur& valeur : valeurs) {
        premieres[valeur.Place] = valeur.Premiere;
    }
    return premieres;
}

std::vector<int> JournalEntrees::Dates() const
{
    return Premieres(dates_);
}

std::vector<int> JournalEntrees::Patients() const
{
    return Premieres(patients_);
}

std::vector<int> JournalEntrees::DuJour(int numero) const
{
    return Semblables(numero, &Ligne::Date, &Ligne::Patient, patients_);
}

std::vector<int> JournalEntrees::DuPatient(int numero) const
{
    return Semblables(numero, &Ligne::Patient, &Ligne::Date, dates_);
}

std::vector<int> JournalEntrees::Semblables(int numero, quint32 Ligne::*cle, quint32 Ligne::*ordre,
                                            const std::vector<Valeur>& places) const
{
    const quint32 voulue = lignes_[static_cast<std::size_t>(numero)].*cle;
    std::vector<int> numeros;
    for (int i = 0; i < Nombre(); ++i) {
        if (lignes_[static_cast<std::size_t>(i)].*cle == voulue) {
            numeros.push_back(i);
        }
    }
    std::ranges::stable_sort(
        numeros, {}, [&](int i) { return places[lignes_[static_cast<std::size_t>(i)].*ordre].Place; });
    return numeros;
}

QString MedecinDuJournal(const QString& chemin)
{
    constexpr qsizetype kDebut = 8; // "Journal_"
    constexpr qsizetype kAutour = 12;
    const QString nom = QFileInfo(chemin).fileName();
    return nom.mid(kDebut, std::max<qsizetype>(0, nom.size() - kAutour));
}

} // namespace prescription
