#include "page/Rejeu.h"

#include "page/Caracteres.h"
#include "page/CouleurQt.h"
#include "page/Mesure.h"

#include <QColor>
#include <QGlyphRun>
#include <QPaintDevice>
#include <QPainter>
#include <QRawFont>
#include <algorithm>
#include <cmath>
#include <vector>

namespace page {

namespace {

constexpr double kMillimetresParPointTypo = 25.4 / 72;
constexpr double kArrondi = 1e-6; // what a place on a whole point of the target may be off by

struct PoliceRejouee
{
    page::Police Police;
    QRawFont Brute;
    double Ascendante = 0;
};

class Rejeu
{
public:
    Rejeu(QPainter& peintre, double unitesParMm)
        : peintre_(peintre), unites_(unitesParMm), points_(peintre.device()->devicePixelRatioF())
    {}

    void operator()(const ItemTexte& item);
    void operator()(const ItemTrait& item);
    void operator()(const ItemCadre& item);
    void operator()(const ItemImage& item);

private:
    const PoliceRejouee& PolicePour(const page::Police& police);
    bool PlaceGlyphes(const ItemTexte& item, const PoliceRejouee& police);
    void EcritUnAUn(const ItemTexte& item, double base);
    void Souligne(const ItemTexte& item, double base);
    void Filet(double x, double x2, double milieu, double epaisseur);
    void Trace(double x, double x2, double haut, double hauteur);
    double EnPointsEntiers(double epaisseur) const;
    double EpaisseurDeTrait(int epaisseur) const;

    QPainter& peintre_;
    double unites_;
    double points_; // of the target in one of its units
    std::vector<PoliceRejouee> polices_;
    std::vector<quint32> glyphes_;
    std::vector<QPointF> places_;
};

const PoliceRejouee& Rejeu::PolicePour(const page::Police& police)
{
    const auto connue = std::ranges::find(polices_, police, &PoliceRejouee::Police);
    if (connue != polices_.end()) {
        return *connue;
    }
    const QFont font = PoliceQt(police);
    QRawFont brute = QRawFont::fromFont(font);
    brute.setPixelSize(font.pointSizeF() * kMillimetresParPointTypo * unites_);
    return polices_.emplace_back(PoliceRejouee{police, brute, MesureAscendante(police)});
}

// False when the font lacks a character: another font has to stand in for it.
bool Rejeu::PlaceGlyphes(const ItemTexte& item, const PoliceRejouee& police)
{
    int nombre = static_cast<int>(item.Texte.size());
    glyphes_.resize(item.Texte.size());
    places_.resize(item.Texte.size());
    if (!police.Brute.glyphIndexesForChars(item.Texte.constData(), nombre, glyphes_.data(), &nombre)) {
        return false;
    }
    glyphes_.resize(nombre);
    places_.resize(nombre);
    double x = 0;
    qsizetype lu = 0;
    for (QPointF& place : places_) {
        place = QPointF(x, 0);
        x += MesureAvance(LitCaractere(item.Texte, lu), item.Police) * unites_;
    }
    return std::ranges::find(glyphes_, 0U) == glyphes_.end();
}

void Rejeu::operator()(const ItemTexte& item)
{
    const PoliceRejouee& police = PolicePour(item.Police);
    const double base = (item.Y + police.Ascendante) * unites_;
    peintre_.setPen(CouleurQt(item.Encre));
    if (PlaceGlyphes(item, police)) {
        QGlyphRun suite;
        suite.setRawFont(police.Brute);
        suite.setRawData(glyphes_.data(), places_.data(), static_cast<int>(glyphes_.size()));
        peintre_.drawGlyphRun(QPointF(item.X * unites_, base), suite);
    } else {
        EcritUnAUn(item, base);
    }
    if (item.Police.Souligne) {
        Souligne(item, base);
    }
}

void Rejeu::EcritUnAUn(const ItemTexte& item, double base)
{
    const double pointsParUnite = 72.0 / peintre_.device()->logicalDpiY();
    peintre_.setFont(PoliceQt(item.Police, kMillimetresParPointTypo * unites_ * pointsParUnite));
    double x = item.X;
    for (qsizetype place = 0; place < item.Texte.size();) {
        const char32_t caractere = LitCaractere(item.Texte, place);
        if (caractere > U' ') {
            peintre_.drawText(QPointF(x * unites_, base), QString::fromUcs4(&caractere, 1));
        }
        x += MesureAvance(caractere, item.Police);
    }
}

void Rejeu::Souligne(const ItemTexte& item, double base)
{
    // The first whole point below its place: never nearer to the letters.
    const Soulignement trait = MesureSoulignement(item.Police);
    const double haut = std::ceil((base + trait.Distance * unites_) * points_ - kArrondi) / points_;
    Trace(item.X * unites_, (item.X + item.Largeur) * unites_, haut,
          EnPointsEntiers(trait.Epaisseur * unites_));
}

void Rejeu::Filet(double x, double x2, double milieu, double epaisseur)
{
    const double hauteur = EnPointsEntiers(epaisseur);
    Trace(x, x2, std::floor((milieu - hauteur / 2) * points_ + 0.5 + kArrondi) / points_, hauteur);
}

// A level rule in the pen's colour.
void Rejeu::Trace(double x, double x2, double haut, double hauteur)
{
    peintre_.fillRect(QRectF(QPointF(x, haut), QPointF(x2, haut + hauteur)).normalized(),
                      peintre_.pen().color());
}

// Whole points of the target: two rules of one thickness look alike.
double Rejeu::EnPointsEntiers(double epaisseur) const
{
    return std::max(1.0, std::round(epaisseur * points_)) / points_;
}

// Never thinner than a unit: a line of the screen is at least one pixel.
double Rejeu::EpaisseurDeTrait(int epaisseur) const
{
    return std::max(1.0, epaisseur * kMillimetresParTrait * unites_);
}

void Rejeu::operator()(const ItemTrait& item)
{
    const double epaisseur = EpaisseurDeTrait(item.Epaisseur);
    peintre_.setPen(QPen(CouleurQt(item.Encre), epaisseur, Qt::SolidLine, Qt::FlatCap));
    if (item.Y == item.Y2) {
        Filet(item.X * unites_, item.X2 * unites_, item.Y * unites_, epaisseur);
    } else {
        peintre_.drawLine(QPointF(item.X, item.Y) * unites_, QPointF(item.X2, item.Y2) * unites_);
    }
}

void Rejeu::operator()(const ItemCadre& item)
{
    peintre_.setPen(QPen(CouleurQt(item.Encre), EpaisseurDeTrait(item.Epaisseur), Qt::SolidLine,
                         Qt::SquareCap, Qt::MiterJoin));
    peintre_.setBrush(Qt::NoBrush);
    const QRectF cadre(QPointF(item.X, item.Y) * unites_, QPointF(item.X2, item.Y2) * unites_);
    peintre_.drawRect(cadre.normalized());
}

void Rejeu::operator()(const ItemImage& item)
{
    const QRectF place(item.X * unites_, item.Y * unites_, item.Largeur * unites_, item.Hauteur * unites_);
    peintre_.drawImage(place, item.Image);
}

} // namespace

void Rejoue(const Dessin& dessin, QPainter& peintre, double unitesParMm)
{
    peintre.save();
    peintre.setRenderHints(QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    Rejeu rejeu(peintre, unitesParMm);
    for (const Item& item : dessin.Items) {
        std::visit(rejeu, item);
    }
    peintre.restore();
}

} // namespace page
