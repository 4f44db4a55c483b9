#pragma once

#include "page/Police.h"

#include <QLabel>

namespace settings {

/// The word of the copies in its font and colour. Its text keeps the star that parts two lines; the lines
/// are shown one below the other, smaller when they have no room.
class MotDesCopies : public QLabel
{
    Q_OBJECT

public:
    explicit MotDesCopies(QWidget* parent);

    void MontrePolice(const page::Police& police);
    void MontreCouleur(page::Couleur couleur);
    const page::Police& Police() const { return police_; }
    page::Couleur Couleur() const { return couleur_; }

protected:
    void paintEvent(QPaintEvent* evenement) override;

private:
    page::Police police_;
    page::Couleur couleur_ = page::kNoir;
};

} // namespace settings
