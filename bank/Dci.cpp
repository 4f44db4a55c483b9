#include "bank/Dci.h"

#include "common/CleDeTri.h"

#include <QRegularExpression>

namespace banque {

namespace {

QSet<QString> Ensemble(const QString& liste)
{
    const QStringList mots = liste.split(u' ', Qt::SkipEmptyParts);
    return {mots.begin(), mots.end()};
}

/// Salts that a prescription leaves out. Quaternary bromides and most esters are substances of their own.
const QSet<QString>& Sels()
{
    static const QSet<QString> sels = Ensemble(QStringLiteral(
        "BESILATE BITARTRATE BROMHYDRATE CHLORHYDRATE CITRATE DICHLORHYDRATE DIGLUCONATE DIMALEATE "
        "EDISILATE ESILATE FUMARATE HEMIFUMARATE HEMISULFATE HYDROGENOMALEATE HYDROGENOSUCCINATE "
        "HYDROGENOTARTRATE ISETHIONATE MALATE MALEATE MESILATE MONOCHLORHYDRATE NITRATE OXALATE "
        "PAMOATE PHOSPHATE SUCCINATE SULFATE TARTRATE TOSILATE TRICHLORHYDRATE XINAFOATE"));
    return sels;
}

/// These make salts as well as esters: left out where the data know the substance alone.
const QSet<QString>& SelsOuEsters()
{
    static const QSet<QString> sels = Ensemble(QStringLiteral("ACETATE GLUCONATE LACTATE"));
    return sels;
}

/// What is known by the whole name, though it begins like a salt.
bool SeDitEntier(const QString& seule)
{
    static const QSet<QString> entiers = Ensemble(QStringLiteral("BETAINE DIMETHYLE DIROXIMEL CHOLINE"));
    return seule.contains(u'(') || seule.contains(u'[') || entiers.contains(common::Replie(seule));
}

/// Cations that stand behind an acid's name.
const QSet<QString>& Suffixes()
{
    static const QSet<QString> suffixes = Ensemble(
        QStringLiteral("SODIQUE MONOSODIQUE DISODIQUE POTASSIQUE CALCIQUE MAGNESIUM MAGNESIQUE ARGININE "
                       "TROMETAMOL CHLORHYDRATE TERT-BUTYLAMINE"));
    return suffixes;
}

/// What is an element to a chemist and no medication to a doctor: the substance itself is named.
bool EstElement(const QString& nom)
{
    static const QSet<QString> elements = Ensemble(QStringLiteral(
        "ALUMINIUM AMMONIUM ARGENT BARYUM BISMUTH BROME CALCIUM CHLORE CHLORURE CHROME COBALT CUIVRE "
        "FER FLUOR FLUORURE IODE LITHIUM MAGNESIUM MANGANESE MOLYBDENE PHOSPHORE POTASSIUM SELENIUM "
        "SODIUM SOUFRE STRONTIUM ZINC"));
    const QString replie = common::Replie(nom);
    return elements.contains(replie.section(u' ', 0, 0)) || nom.contains(u'+') || nom.endsWith(u'-');
}

QString SansEau(QString nom)
{
    static const QRegularExpression fin(QStringLiteral(
        " (ANHYDRE|(H[ÉE]MI|MONO|DI|TRI|T[ÉE]TRA|PENTA|HEXA|HEPTA|OCTA|NONA|D[ÉE]CA|SESQUI|DOD[ÉE]CA)*"
        "HYDRAT[ÉE]E?|BASE|MICRONIS[ÉE]E?)$"));
    for (;;) {
        const auto trouve = fin.match(nom);
        if (!trouve.hasMatch()) {
            return nom;
        }
        nom.truncate(trouve.capturedStart());
    }
}

} // namespace

QString OrdreParle(const QString& nom)
{
    static const QRegularExpression sel(QStringLiteral("^([^()]+) \\(([^()]+) (DE|D')\\)(.*)$"));
    static const QRegularExpression acide(QStringLiteral("^([^()]+) \\(ACIDE\\)(.*)$"));
    if (const auto trouve = sel.match(nom); trouve.hasMatch()) {
        const QString lien =
            trouve.captured(3) == QLatin1String("DE") ? QStringLiteral(" DE ") : QStringLiteral(" D'");
        return trouve.captured(2) + lien + trouve.captured(1) + trouve.captured(4);
    }
    if (const auto trouve = acide.match(nom); trouve.hasMatch()) {
        return QStringLiteral("ACIDE ") + trouve.captured(1) + trouve.captured(2);
    }
    return nom;
}

void Dci::Apprend(const Composant& composant)
{
    ++noms_[composant.Code][composant.Nom];
    seules_.insert(common::Replie(composant.Nom));
}

QString Dci::Nom(int code) const
{
    QString meilleur;
    int nombre = 0;
    const auto formes = noms_.value(code);
    for (auto forme = formes.begin(); forme != formes.end(); ++forme) {
        const bool plusSimple = meilleur.contains(u'(') && !forme.key().contains(u'(');
        if (forme.value() > nombre || (forme.value() == nombre && plusSimple)) {
            meilleur = forme.key();
            nombre = forme.value();
        }
    }
    return meilleur;
}

bool Dci::Connue(const QString& nom) const
{
    return seules_.contains(common::Replie(nom));
}

QString Dci::SansSel(const QString& nom) const
{
    static const QRegularExpression debut(QStringLiteral("^([^ ]+) (DE |D')(.+)$"));
    if (const auto trouve = debut.match(nom); trouve.hasMatch()) {
        const QString seule = SansEau(trouve.captured(3));
        const QString acide = common::Replie(trouve.captured(1));
        const bool sel = Sels().contains(acide) || (SelsOuEsters().contains(acide) && Connue(seule));
        return sel && !EstElement(seule) && !SeDitEntier(seule) ? seule : nom;
    }
    const qsizetype blanc = nom.lastIndexOf(u' ');
    const QString seule = nom.left(blanc);
    // The two heparins are injected differently: their names stay whole.
    const bool sel = blanc > 0 && Suffixes().contains(common::Replie(nom.mid(blanc + 1))) &&
                     !seule.startsWith(QStringView(u"HÉPARINE"));
    return sel && Connue(seule) ? seule : nom;
}

QString Dci::NomPrescrit(int code) const
{
    QString& prescrit = prescrits_[code];
    if (prescrit.isNull()) {
        prescrit = OrdreParle(Nom(code));
        prescrit.remove(QStringLiteral(" POUR PRÉPARATIONS HOMÉOPATHIQUES"));
        prescrit = SansSel(SansEau(prescrit));
    }
    return prescrit;
}

QStringList Dci::NomsDuLien(const QList<const Composant*>& lien) const
{
    QStringList fractions;
    QStringList actives;
    for (const Composant* composant : lien) {
        const QString nom = NomPrescrit(composant->Code);
        if (!composant->Fraction) {
            actives.append(nom);
        } else if (!EstElement(nom)) {
            fractions.append(nom);
        }
    }
    // A salt can name both of its halves as fractions: the one that bears its name counts.
    if (fractions.size() > 1 && actives.size() == 1 && fractions.contains(actives.first())) {
        return actives;
    }
    return fractions.isEmpty() ? actives : fractions;
}

QString Dci::De(const QList<Composant>& composition) const
{
    QMap<int, QMap<QString, QList<const Composant*>>> liens;
    for (const Composant& composant : composition) {
        liens[composant.Lien][composant.Element].append(&composant);
    }
    QStringList noms;
    for (const auto& elements : std::as_const(liens)) {
        for (const auto& lien : elements) {
            noms.append(NomsDuLien(lien));
        }
    }
    noms.removeDuplicates();
    return noms.join(u';');
}

} // namespace banque
