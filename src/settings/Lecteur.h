#pragma once

#include <QByteArray>
#include <QString>
#include <limits>
#include <type_traits>

namespace settings {

/// How a record was read.
enum class Lecture {
    Absente, ///< no file
    Complete,
    Courte, ///< fewer fields than asked, as an older version writes them
    Abimee  ///< empty, binary, an open quote, no number or one out of range
};

/// Reads the fields of a text record in order. Once something is damaged or the end is reached, every
/// further field is left as it is.
class Lecteur
{
public:
    explicit Lecteur(QByteArrayView octets);

    void Lit(QString& champ);
    void Lit(float& champ);
    template <typename Entier>
    requires std::is_integral_v<Entier>
    void Lit(Entier& champ)
    {
        LitNombre(champ, std::numeric_limits<Entier>::min(), std::numeric_limits<Entier>::max());
    }

    Lecture Etat() const;

private:
    bool Suivant();
    void PrendEntreGuillemets();
    void PrendJusquaVirgule();
    bool NombreSuivant(double& nombre);
    template <typename Entier> void LitNombre(Entier& champ, double minimum, double maximum)
    {
        double nombre = 0;
        if (NombreSuivant(nombre)) {
            const double entier = Arrondi(nombre);
            if (entier < minimum || entier > maximum) {
                abime_ = true;
            } else {
                champ = static_cast<Entier>(entier);
            }
        }
    }
    static double Arrondi(double nombre);

    QByteArrayView octets_;
    qsizetype place_ = 0;
    QByteArray morceau_; ///< the field last taken
    bool abime_ = false;
    bool court_ = false;
};

} // namespace settings
