#pragma once

#include "page/Police.h"

#include <QWidget>

namespace settings {

/// A patch of a colour that the doctor chose.
class Pastille : public QWidget
{
    Q_OBJECT

public:
    explicit Pastille(QWidget* parent);

    void Montre(page::Couleur couleur);
};

} // namespace settings
