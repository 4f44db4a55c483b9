#include "Textes.h"

#include "Defaut.h"

#include <cerrno>

namespace jet {

namespace {

constexpr std::uint32_t kRemplacement = 0xFFFD;
constexpr std::uint32_t kHaut = 0xD800;
constexpr std::uint32_t kBas = 0xDC00;
constexpr std::uint32_t kApres = 0xE000;
constexpr std::uint32_t kPlan = 0x10000;

void AjouteCaractere(std::string& utf8, std::uint32_t code)
{
    const auto ajoute = [&](std::uint32_t octet) { utf8.push_back(static_cast<char>(octet)); };
    const auto suite = [&](int decalage) { ajoute(0x80 | ((code >> decalage) & 0x3F)); };
    if (code < 0x80) {
        ajoute(code);
    } else if (code < 0x800) {
        ajoute(0xC0 | (code >> 6));
        suite(0);
    } else if (code < kPlan) {
        ajoute(0xE0 | (code >> 12));
        suite(6);
        suite(0);
    } else {
        ajoute(0xF0 | (code >> 18));
        suite(12);
        suite(6);
        suite(0);
    }
}

/// Joins the two halves of a character beyond the first plane; a half that stands alone is replaced.
class Unites
{
public:
    explicit Unites(std::string& utf8) : utf8_(utf8) {}

    void Recoit(std::uint32_t unite)
    {
        const bool bas = unite >= kBas && unite < kApres;
        if (haut_ != 0 && bas) {
            AjouteCaractere(utf8_, kPlan + ((haut_ - kHaut) << 10) + (unite - kBas));
            haut_ = 0;
            return;
        }
        Finit();
        if (unite >= kHaut && unite < kBas) {
            haut_ = unite;
        } else {
            AjouteCaractere(utf8_, bas ? kRemplacement : unite);
        }
    }
    void Finit()
    {
        if (haut_ != 0) {
            AjouteCaractere(utf8_, kRemplacement);
            haut_ = 0;
        }
    }

private:
    std::string& utf8_;
    std::uint32_t haut_ = 0;
};

/// Behind its mark the short form has one byte a character; a zero goes over to two bytes and back.
void AjouteCourt(Unites& unites, Octets texte)
{
    bool court = true;
    for (std::size_t i = 2; i < texte.size(); ++i) {
        if (texte[i] == 0) {
            court = !court;
        } else if (court) {
            unites.Recoit(texte[i]);
        } else if (i + 1 < texte.size()) {
            unites.Recoit(Nombre(&texte[i], 2));
            ++i;
        } else {
            throw Defaut("text cut in a character");
        }
    }
}

void AjouteUnicode(std::string& utf8, Octets texte)
{
    Unites unites(utf8);
    if (texte.size() >= 2 && texte[0] == 0xFF && texte[1] == 0xFE) {
        AjouteCourt(unites, texte);
    } else if (texte.size() % 2 == 0) {
        for (std::size_t i = 0; i < texte.size(); i += 2) {
            unites.Recoit(Nombre(&texte[i], 2));
        }
    } else {
        throw Defaut("text cut in a character");
    }
    unites.Finit();
}

GIConv Conversion(int page)
{
    if (page == 0) {
        return nullptr;
    }
    GIConv conversion = g_iconv_open("UTF-8", ("CP" + std::to_string(page)).c_str());
    return conversion != reinterpret_cast<GIConv>(-1) ? conversion : g_iconv_open("UTF-8", "CP1252");
}

} // namespace

Textes::Textes(int page) : conversion_(Conversion(page)) {}

Textes::~Textes()
{
    if (conversion_) {
        g_iconv_close(conversion_);
    }
}

void Textes::Ajoute(std::string& utf8, Octets texte) const
{
    if (conversion_) {
        AjoutePage(utf8, texte);
    } else {
        AjouteUnicode(utf8, texte);
    }
}

void Textes::AjoutePage(std::string& utf8, Octets texte) const
{
    // The library declares its input changeable and does not change it.
    char* entree = const_cast<char*>(reinterpret_cast<const char*>(texte.data()));
    gsize reste = texte.size();
    while (reste > 0) {
        char morceau[256];
        char* sortie = morceau;
        gsize place = sizeof morceau;
        const gsize rendu = g_iconv(conversion_, &entree, &reste, &sortie, &place);
        const int erreur = errno;
        utf8.append(morceau, sortie);
        if (rendu == static_cast<gsize>(-1) && erreur != E2BIG) {
            // A byte that the code page does not know: the character of the same number keeps it apart.
            AjouteCaractere(utf8, static_cast<unsigned char>(*entree));
            ++entree;
            --reste;
        }
    }
}

} // namespace jet
