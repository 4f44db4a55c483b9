#pragma once

#include <QBasicTimer>
#include <QIcon>
#include <QWidget>

namespace medication {

/// A small picture that breathes while there is something to see, and is hidden otherwise. It stands beside
/// the control that opens the same window by the keyboard.
class ImageAnimee : public QWidget
{
    Q_OBJECT

public:
    /// `icone` by its name, in red when the picture warns. `texte`: what it tells.
    ImageAnimee(const QString& nomObjet, const QString& icone, bool alerte, const QString& texte,
                QWidget* parent);

    /// Shows the picture, and tells those who do not see it.
    void Joue();
    /// Stops and hides it.
    void Arrete();

    QSize sizeHint() const override;

Q_SIGNALS:
    void Clic();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QIcon icone_;
    QColor couleur_;
    QBasicTimer rythme_; ///< runs while the picture is seen
    int pas_ = 0;
};

} // namespace medication
