#pragma once

#include <QWidget>

namespace page {

class Feuille;

/// A sheet that is wholly visible, as large as its room allows and in its middle.
class FeuilleEntiere : public QWidget
{
    Q_OBJECT

public:
    /// Takes the sheet as its child.
    FeuilleEntiere(page::Feuille* feuille, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* evenement) override;

private:
    page::Feuille* feuille_;
};

} // namespace page
