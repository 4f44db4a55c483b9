#include "bank/ThesaurusLecture.h"

#include "bank/LecteurLignes.h"
#include "bank/ThesaurusTexte.h"
#include "common/Texte8.h"

#include <QRegularExpression>

namespace banque {

namespace {

constexpr qsizetype kMargeTexte = 6;    // lines that stand further in belong to an interaction
constexpr qsizetype kEcartDePages = 20; // how far the second column moves between two pages, at most
constexpr qsizetype kColonneUsuelle = 90;

/// A line of an interaction, cut in its two columns.
struct Rangee
{
    QString Gauche;
    QString Droite;

    bool Vide() const { return Gauche.isEmpty() && Droite.isEmpty(); }
    bool operator==(const Rangee&) const = default;
};

qsizetype Retrait(const QString& ligne)
{
    qsizetype retrait = 0;
    while (retrait < ligne.size() && ligne[retrait].isSpace()) {
        ++retrait;
    }
    return retrait;
}

/// The heading of a page: its number, alone and far in.
bool EstNumeroDePage(const QString& ligne)
{
    static const QRegularExpression numero(QStringLiteral("^\\s*\\d{1,4}\\s*$"));
    return numero.match(ligne).hasMatch();
}

/// Where the last wide gap within a line ends; -1 without one.
qsizetype FinDuVide(const QString& ligne)
{
    static const QRegularExpression vide(QStringLiteral("\\S {3,}(?=\\S)"));
    qsizetype fin = -1;
    for (auto trouve = vide.globalMatch(ligne); trouve.hasNext();) {
        fin = trouve.next().capturedEnd();
    }
    return fin;
}

/// Where the second column begins. A page on which no level stands continues one whose column is known: it
/// begins where the text behind the gaps does, or the lines that stand about as far in.
qsizetype Colonne(const QStringList& page, qsizetype precedente)
{
    for (const QString& ligne : page) {
        const qsizetype colonne = ColonneDuNiveau(ligne);
        if (colonne >= 0) {
            return colonne;
        }
    }
    qsizetype colonne = -1;
    for (const QString& ligne : page) {
        const qsizetype retrait = Retrait(ligne);
        if (retrait < kMargeTexte || retrait == ligne.size() || EstNumeroDePage(ligne)) {
            continue;
        }
        const qsizetype debut = retrait >= precedente - kEcartDePages ? retrait : FinDuVide(ligne);
        colonne = debut >= 0 && (colonne < 0 || debut < colonne) ? debut : colonne;
    }
    return colonne;
}

/// The line's two columns. Where a word stands across the border, its last wide gap parts it.
Rangee Coupe(const QString& ligne, qsizetype colonne)
{
    const bool enTravers = colonne > 0 && colonne < ligne.size() && !ligne[colonne - 1].isSpace();
    const qsizetype borne = enTravers ? FinDuVide(ligne) : colonne;
    return borne < 0 ? Rangee{ligne.trimmed(), {}}
                     : Rangee{ligne.left(borne).trimmed(), ligne.mid(borne).trimmed()};
}

/// One mechanism with its level and advice; nearly every interaction has just one.
using Bloc = QList<Rangee>;

/// The rows parted where, behind a blank row, a mechanism and a level begin again.
QList<Bloc> Blocs(const QList<Rangee>& rangees)
{
    QList<Bloc> blocs;
    bool apresVide = true;
    for (const Rangee& rangee : rangees) {
        const bool reprend = apresVide && !rangee.Gauche.isEmpty() && LitNiveaux(rangee.Droite).has_value();
        if (blocs.isEmpty() || reprend) {
            blocs.append(Bloc());
        }
        blocs.last().append(rangee);
        apresVide = rangee.Vide();
    }
    for (Bloc& bloc : blocs) {
        while (!bloc.isEmpty() && bloc.last().Vide()) {
            bloc.removeLast();
        }
    }
    return blocs;
}

/// Adds a text behind a blank line, unless it is there already.
void Joint(QString& texte, const QString& suite)
{
    if (suite.isEmpty() || suite == texte) {
        return;
    }
    texte += texte.isEmpty() ? suite : QStringLiteral("\n\n") + suite;
}

/// Puts a block's level and texts to those of the blocks before it.
void Ajoute(const Bloc& bloc, CoteImprime& cote)
{
    QStringList gauche;
    QStringList droite;
    QString niveaux;
    bool enTete = true; // nothing stands on the right so far
    for (const Rangee& rangee : bloc) {
        gauche.append(rangee.Gauche);
        if (!enTete || !LitNiveaux(rangee.Droite)) {
            droite.append(rangee.Droite);
        } else {
            niveaux = rangee.Droite;
        }
        enTete = enTete && rangee.Droite.isEmpty();
    }
    Joint(cote.Risque, TexteDeColonne(gauche));
    Joint(cote.Precaution, TexteDeColonne(droite));
    const auto lu = LitNiveaux(niveaux);
    const auto avant = LitNiveaux(cote.Niveaux);
    if (lu && (!avant || lu->Plus > avant->Plus)) {
        cote.Niveaux = niveaux;
    }
}

/// Walks the document line by line.
class Lecteur
{
public:
    DocumentImprime Lit(const QString& texte);

private:
    void LitPage(const QStringList& lignes);
    void LitLigne(const QString& ligne);
    void OuvreTitre(const QString& ligne);
    void OuvreCote(const QString& nom);
    void FermeCote();
    void FermeTitre();
    void LitNotes();
    void LitNote(const QStringList& lignes);

    DocumentImprime document_;
    TitreImprime titre_;
    QStringList notes_; ///< below the heading, blank lines among them
    CoteImprime cote_;
    QStringList nomDuCote_; ///< the lines of its name
    QList<Rangee> rangees_;
    bool dansTitre_ = false;
    bool dansCote_ = false;
    bool titreOuvert_ = false; ///< the line before was a heading's
    qsizetype colonne_ = -1;
    int ligne_ = 0;
};

void Lecteur::OuvreTitre(const QString& ligne)
{
    if (titreOuvert_) {
        titre_.Nom += u' ' + ligne.simplified();
        return;
    }
    FermeTitre();
    titre_.Nom = ligne.simplified();
    dansTitre_ = titreOuvert_ = true;
}

void Lecteur::OuvreCote(const QString& nom)
{
    FermeCote();
    titreOuvert_ = false;
    if (!dansTitre_) {
        ++document_.CotesSansTitre;
        return;
    }
    nomDuCote_ = {nom};
    cote_.Ligne = ligne_;
    dansCote_ = true;
}

void Lecteur::FermeCote()
{
    cote_.Nom = TexteDeColonne(nomDuCote_).replace(u'\n', u' ');
    if (dansCote_ && !cote_.Nom.isEmpty()) {
        for (const Bloc& bloc : Blocs(rangees_)) {
            Ajoute(bloc, cote_);
        }
        titre_.Cotes.append(cote_);
    }
    cote_ = {};
    nomDuCote_.clear();
    rangees_.clear();
    dansCote_ = false;
}

/// Sorts what stands below a heading, one run of lines: a reference, a list of members, or a text.
void Lecteur::LitNote(const QStringList& lignes)
{
    static const QRegularExpression voirAussi(QStringLiteral("^\\(?voir aussi\\b *:? *"),
                                              QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression tiret(QStringLiteral(" -(?: |$)"));
    const QString note = TexteDeColonne(lignes).replace(u'\n', u' ');
    const QRegularExpressionMatch renvoi = voirAussi.match(note);
    if (renvoi.hasMatch()) {
        const bool entreParentheses = note.startsWith(u'(') && note.endsWith(u')');
        const QString noms = note.mid(renvoi.capturedLength()).chopped(entreParentheses ? 1 : 0);
        for (const QString& nom : QString(noms).remove(u'"').split(tiret, Qt::SkipEmptyParts)) {
            titre_.VoirAussi.append(nom.simplified());
        }
    } else if (note.startsWith(u'(')) {
        titre_.Membres.append(MembresDeListe(note));
    } else {
        Joint(titre_.Introduction, note);
    }
}

/// A blank line ends a run, and so does the bracket that closes a list or opens one.
void Lecteur::LitNotes()
{
    QStringList lignes;
    qsizetype ouvertes = 0;
    const auto finit = [&] {
        LitNote(lignes);
        lignes.clear();
        ouvertes = 0;
    };
    for (const QString& note : std::as_const(notes_)) {
        const bool liste = !lignes.isEmpty() && lignes.first().startsWith(u'(');
        if (note.isEmpty() || (liste && ouvertes <= 0) || (note.startsWith(u'(') && !liste)) {
            finit();
        }
        if (!note.isEmpty()) {
            lignes.append(note);
            ouvertes += note.count(u'(') - note.count(u')');
        }
    }
    finit();
}

void Lecteur::FermeTitre()
{
    FermeCote();
    if (dansTitre_) {
        LitNotes();
        document_.Titres.append(titre_);
    }
    titre_ = {};
    notes_.clear();
    dansTitre_ = false;
}

void Lecteur::LitLigne(const QString& ligne)
{
    const qsizetype retrait = Retrait(ligne);
    if (retrait == ligne.size()) {
        titreOuvert_ = false;
        if (dansCote_) {
            rangees_.append(Rangee());
        } else {
            notes_.append(QString());
        }
    } else if (retrait == 0 && ligne.front() == u'+') {
        OuvreCote(ligne.mid(1));
    } else if (retrait == 0) {
        OuvreTitre(ligne);
    } else if (dansCote_ && retrait < kMargeTexte && rangees_.isEmpty()) {
        nomDuCote_.append(ligne);
    } else if (dansCote_ && retrait >= kMargeTexte) {
        rangees_.append(Coupe(ligne, colonne_));
    } else {
        titreOuvert_ = false;
        notes_.append(ligne.trimmed());
    }
}

/// Blank lines around a page's edge part nothing.
void Lecteur::LitPage(const QStringList& lignes)
{
    colonne_ = Colonne(lignes, colonne_ >= 0 ? colonne_ : kColonneUsuelle);
    while (!rangees_.isEmpty() && rangees_.last().Vide()) {
        rangees_.removeLast();
    }
    bool enTete = true;
    for (const QString& ligne : lignes) {
        ++ligne_;
        enTete = enTete && (ligne.trimmed().isEmpty() || EstNumeroDePage(ligne));
        if (!enTete) {
            LitLigne(ligne);
        }
    }
    --ligne_; // the line that a form feed stands in belongs to the page behind it
}

DocumentImprime Lecteur::Lit(const QString& texte)
{
    const QStringList pages = QString(texte).remove(u'\r').split(u'\f');
    const auto numerotee = [](const QString& page) {
        return EstNumeroDePage(page.left(page.indexOf(u'\n')));
    };
    qsizetype premiere = 0; // pages before the first number are the cover
    while (premiere < pages.size() && !numerotee(pages[premiere])) {
        ++premiere;
    }
    premiere = premiere < pages.size() ? premiere : 0;
    for (qsizetype i = 0; i < premiere; ++i) {
        ligne_ += int(pages[i].count(u'\n'));
    }
    const QString couverture = pages.mid(0, qMax<qsizetype>(premiere, 1)).join(u'\n');
    document_.Edition = EditionDeCouverture(couverture);
    document_.VoiesLocales = VoiesLocalesDeCouverture(couverture);
    for (const QString& page : pages.mid(premiere)) {
        LitPage(page.split(u'\n'));
    }
    FermeTitre();
    return document_;
}

} // namespace

DocumentImprime LitDocument(QByteArrayView texte)
{
    return Lecteur().Lit(DetecteEncodage(texte) == Encodage::Utf8 ? QString::fromUtf8(texte)
                                                                  : common::DepuisWindows1252(texte));
}

} // namespace banque
