#pragma once

#include <QLabel>

namespace settings {

/// A line of text at the right of its room. One that is too long ends in "…", and its tool tip shows all of
/// it.
class LibelleCoupe : public QLabel
{
    Q_OBJECT

public:
    LibelleCoupe(const QString& nom, QWidget* parent);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;

private:
    QString Coupe() const;
};

} // namespace settings
