#pragma once

#include <QLineEdit>

namespace prescription {

/// The search box above the lists of memorised prescriptions.
class ChampRecherche : public QLineEdit
{
    Q_OBJECT

public:
    explicit ChampRecherche(QWidget* parent);

Q_SIGNALS:
    /// The key that leads to the lists below.
    void Bas();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace prescription
