#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace bench {

/// Seconds that a call takes.
template <typename Appel> double Secondes(Appel&& appel)
{
    const auto debut = std::chrono::steady_clock::now();
    appel();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
}

inline double Mediane(std::vector<double> valeurs)
{
    const auto milieu = valeurs.begin() + static_cast<std::ptrdiff_t>(valeurs.size() / 2);
    std::ranges::nth_element(valeurs, milieu);
    return *milieu;
}

/// Times `mesure` against its yardstick `etalon`, in turn, so that a slow moment of the machine hits both.
/// The benchmark's time is that of `mesure`; the counters are the medians of both and of their ratios. What
/// `prepare` does before each of `mesure` counts nowhere.
template <typename Mesure, typename Etalon>
void Compare(
    benchmark::State& state, Mesure&& mesure, Etalon&& etalon, const std::function<void()>& prepare = [] {})
{
    std::vector<double> temps;
    std::vector<double> reference;
    std::vector<double> rapports;
    for ([[maybe_unused]] auto _ : state) {
        reference.push_back(Secondes(etalon));
        prepare();
        temps.push_back(Secondes(mesure));
        rapports.push_back(temps.back() / reference.back());
        state.SetIterationTime(temps.back());
    }
    state.counters["ms"] = 1000 * Mediane(temps);
    state.counters["etalon_ms"] = 1000 * Mediane(reference);
    state.counters["rapport"] = Mediane(rapports);
}

} // namespace bench
