#include "common/TriParCle.h"

#include <array>
#include <numeric>
#include <utility>

namespace common {

namespace {

constexpr int kBits = 12;
constexpr int kTas = 1 << kBits;
constexpr int kBitsDeCle = 60;

size_t Tas(const Repere& repere, int decalage)
{
    return (repere.Cle >> decalage) & (kTas - 1);
}

void Distribue(const std::vector<Repere>& source, std::vector<Repere>& destination, int decalage)
{
    std::array<size_t, kTas> nombres{};
    for (const Repere& repere : source) {
        ++nombres[Tas(repere, decalage)];
    }
    std::array<size_t, kTas> debuts;
    std::exclusive_scan(nombres.begin(), nombres.end(), debuts.begin(), size_t(0));
    for (const Repere& repere : source) {
        destination[debuts[Tas(repere, decalage)]++] = repere;
    }
}

} // namespace

std::vector<Repere> TrieReperes(std::vector<Repere> reperes)
{
    std::vector<Repere> autre(reperes.size());
    for (int decalage = 0; decalage < kBitsDeCle; decalage += kBits) {
        Distribue(reperes, autre, decalage);
        std::swap(reperes, autre);
    }
    return reperes;
}

} // namespace common
