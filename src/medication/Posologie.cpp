#include "medication/Posologie.h"

namespace medication {

namespace {

const QLatin1String kEnCasDeBesoin("en cas de besoin,");
const QLatin1String kNImporteQuand("n'importe quand");

QStringList Textes(std::initializer_list<const char16_t*> textes)
{
    QStringList liste;
    for (const char16_t* texte : textes) {
        liste.append(QString::fromUtf16(texte));
    }
    return liste;
}

const QStringList& Quantites()
{
    static const QStringList liste = Textes({u"1/4", u"1/2", u"3/4", u"1", u"1 1/4", u"1 1/2", u"2", u"3",
                                             u"4", u"5", u"10", u"15", u"20", u"25", u"30"});
    return liste;
}

const QStringList& Formes()
{
    static const QStringList liste = Textes({u"comprimé(s)",
                                             u"comprimé(s) eff.",
                                             u"comprimé(s) orodisp.",
                                             u"gélule(s)",
                                             u"sachet(s)",
                                             u"ampoule(s)",
                                             u"cuillère(s) à soupe",
                                             u"cuillère(s) à café",
                                             u"cuillère(s) mesure",
                                             u"dose(s) poids",
                                             u"goutte(s)",
                                             u"pulvérisation(s)",
                                             u"inhalation(s)",
                                             u"application(s)",
                                             u"dose(s)",
                                             u"injection(s) IM",
                                             u"ovule",
                                             u"lyoc",
                                             u"lyo",
                                             u"dose 2,5 ml",
                                             u"dose 5 ml",
                                             u"dose 10 ml",
                                             u"dose 15 ml",
                                             u"suppo"});
    return liste;
}

const QStringList& Repas()
{
    static const QStringList liste =
        Textes({u"en cas de besoin,", u"avant les repas,", u"au début des repas,", u"pendant les repas,",
                u"après les repas,", u"à la fin des repas,", u"à distance des repas,", u"n'importe quand"});
    return liste;
}

const QStringList& Frequences()
{
    static const QStringList liste =
        Textes({u"tous les jours,", u"tous les 2 jours,", u"5 jours par semaine,", u"1 jour par semaine,",
                u"1 jour par mois,", u"du Xème au Xème jour du cycle,"});
    return liste;
}

const QStringList& Durees()
{
    static const QStringList liste = Textes(
        {u"pendant 5 jours", u"pendant 6 jours", u"pendant 7 jours", u"pendant 8 jours", u"pendant 10 jours",
         u"pendant 14 jours", u"pendant 1 mois", u"pendant 3 mois", u"pendant 4 mois", u"pendant 6 mois"});
    return liste;
}

QString MotDuMoment(int indice)
{
    static const QStringList mots = Textes({u"le matin, ", u"le midi, ", u"le soir, ", u"au coucher, "});
    return mots[indice - kMatin];
}

/// The piece of one quantity. The form is named unless what stands before it names it already.
QString Segment(const QString& quantite, const QString& forme, const QString& avant, int indice)
{
    const QStringList mots = quantite.split(u' ');
    QString segment = mots.first();
    if (!avant.contains(forme)) {
        segment += QStringLiteral("  ") + forme;
    }
    if (mots.size() > 1) {
        segment += QStringLiteral(" et ") + mots.last();
    }
    return segment + QStringLiteral("  ") + MotDuMoment(indice);
}

QString PhraseMoments(const ChoixPosologie& choix)
{
    QString phrase;
    for (int i = kMatin; i <= kCoucher; ++i) {
        if (!choix[size_t(i)].isEmpty()) {
            phrase += Segment(choix[size_t(i)], choix[kForme], phrase, i);
        }
    }
    return phrase + choix[kRepas] + u' ' + choix[kFrequence] + u' ' + choix[kDuree];
}

QString PhraseBesoin(const ChoixPosologie& choix, const QString& quantite)
{
    return quantite + QStringLiteral("  ") + choix[kForme] +
           QStringLiteral(" , en cas de besoin (max X par jour), ") + choix[kFrequence] + u' ' +
           choix[kDuree];
}

QString PhraseLibre(const ChoixPosologie& choix, const QString& quantite)
{
    const QString& frequence = choix[kFrequence];
    return quantite + u' ' + choix[kForme] + u' ' + frequence +
           (frequence.isEmpty() ? QStringLiteral(", ") : QStringLiteral(" ")) +
           QStringLiteral("toujours dans le même créneau horaire que vous pouvez choisir librement, ") +
           u' ' + choix[kDuree];
}

} // namespace

QString LegendeCboP(int indice)
{
    static const QStringList legendes = Textes(
        {u"Forme", u"Matin", u"Midi", u"Soir", u"Coucher", u"Repas / horaire", u"Fréquence", u"Durée"});
    return legendes.value(indice);
}

QStringList ListeCboP(int indice)
{
    switch (indice) {
    case kForme:
        return Formes();
    case kRepas:
        return Repas();
    case kFrequence:
        return Frequences();
    case kDuree:
        return Durees();
    default:
        return EstQuantite(indice) ? Quantites() : QStringList();
    }
}

CasPosologie CasDe(const ChoixPosologie& choix, int dernierCboP)
{
    if (!EstQuantite(dernierCboP) && choix[kRepas] == kEnCasDeBesoin) {
        return dernierCboP == kRepas ? CasPosologie::DemandeBesoin : CasPosologie::Besoin;
    }
    if (!EstQuantite(dernierCboP) && choix[kRepas] == kNImporteQuand) {
        return dernierCboP == kRepas ? CasPosologie::DemandeLibre : CasPosologie::Libre;
    }
    return CasPosologie::Moments;
}

bool DemandeQuantite(CasPosologie cas)
{
    return cas == CasPosologie::DemandeBesoin || cas == CasPosologie::DemandeLibre;
}

QString EcritPoso(const ChoixPosologie& choix, int dernierCboP, const QString& texteQuantite)
{
    switch (CasDe(choix, dernierCboP)) {
    case CasPosologie::DemandeBesoin:
        return CoupeVirgule(PhraseBesoin(choix, texteQuantite));
    case CasPosologie::Besoin:
        return PhraseBesoin(choix, texteQuantite);
    case CasPosologie::DemandeLibre:
        return CoupeVirgule(PhraseLibre(choix, texteQuantite));
    case CasPosologie::Libre:
        return PhraseLibre(choix, texteQuantite);
    case CasPosologie::Moments:
        break;
    }
    return CoupeVirgule(PhraseMoments(choix));
}

QString CoupeVirgule(const QString& texte)
{
    const QString coupe = texte.trimmed();
    return coupe.endsWith(u',') ? coupe.chopped(1) : texte;
}

bool ResteUnX(const QString& texte)
{
    return texte.contains(QLatin1String("max X par jour")) || texte.contains(QStringLiteral("Xème"));
}

QString PosologieRendue(const QString& texte)
{
    return CoupeVirgule(texte.trimmed());
}

} // namespace medication
