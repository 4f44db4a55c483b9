#pragma once

#include "application/Contexte.h"

#include <QWidget>
#include <algorithm>
#include <memory>
#include <typeindex>
#include <vector>

namespace application {

/// Makes each window at its first touch and owns it until it is unloaded. A window's constructor is its
/// load handler and takes `(Contexte&, Fenetres&)`. Its object name is its class name, "FrmOrdo".
class Fenetres
{
public:
    explicit Fenetres(application::Contexte& contexte) : contexte_(contexte) {}
    ~Fenetres() { DechargeTout(); }

    /// The window, loaded if need be.
    template <typename F> F& Donne()
    {
        if (F* presente = Presente<F>()) {
            return *presente;
        }
        auto fenetre = std::make_unique<F>(contexte_, *this);
        F& reference = *fenetre;
        fenetres_.push_back({typeid(F), std::move(fenetre)});
        return reference;
    }

    /// The window if it is loaded, else null.
    template <typename F> F* Presente() const
    {
        const auto place = std::ranges::find(fenetres_, std::type_index(typeid(F)), &Element::Genre);
        return place == fenetres_.end() ? nullptr : static_cast<F*>(place->Fenetre.get());
    }

    /// Loads a dialogue, shows it modal and unloads it. One that is open already comes to the front.
    template <typename F> void OuvreModale()
    {
        auto& fenetre = Donne<F>();
        if (fenetre.isVisible()) {
            fenetre.raise();
            fenetre.activateWindow();
            return;
        }
        fenetre.exec();
        Decharge<F>();
    }

    /// Hides and unloads a window; it is deleted when control is back in the event loop.
    template <typename F> void Decharge()
    {
        const auto place = std::ranges::find(fenetres_, std::type_index(typeid(F)), &Element::Genre);
        if (place != fenetres_.end()) {
            place->Fenetre->hide();
            place->Fenetre.release()->deleteLater();
            fenetres_.erase(place);
        }
    }

    /// Hides every window, the last made first.
    void CacheTout()
    {
        for (auto element = fenetres_.rbegin(); element != fenetres_.rend(); ++element) {
            element->Fenetre->hide();
        }
    }

    /// Deletes every window, the last made first. Only when none of their handlers is running.
    void DechargeTout()
    {
        while (!fenetres_.empty()) {
            fenetres_.pop_back();
        }
    }

private:
    struct Element
    {
        std::type_index Genre;
        std::unique_ptr<QWidget> Fenetre;
    };

    application::Contexte& contexte_;
    std::vector<Element> fenetres_;
};

} // namespace application
