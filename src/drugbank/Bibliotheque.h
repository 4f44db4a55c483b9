#pragma once

#include <QLibrary>

namespace drugbank {

/// A library of another house, loaded as long as this object lives.
class Bibliotheque
{
public:
    /// `nom` as the system's loader takes it: a plain name or a path. On Windows the libraries that it needs
    /// are looked for in its own directory first when it is an absolute path.
    explicit Bibliotheque(const QString& nom);
    ~Bibliotheque();
    Bibliotheque(const Bibliotheque&) = delete;
    Bibliotheque& operator=(const Bibliotheque&) = delete;

    bool Chargee() const { return bibliotheque_.isLoaded(); }

    /// The function of that name, exported bare or decorated with `octets`, the bytes of its arguments; null
    /// when the library lacks it.
    QFunctionPointer Adresse(const char* nom, int octets);

    /// From now on the library stays in memory until the process ends.
    void Garde() { gardee_ = true; }

private:
    QLibrary bibliotheque_;
    bool gardee_ = false;
};

} // namespace drugbank
