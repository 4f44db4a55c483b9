#pragma once

#include <QComboBox>

namespace medication {

/// A box of `FrmPoso`: a text of its list or one typed. The wheel changes nothing, the arrow keys open the
/// list.
class BoiteCboP : public QComboBox
{
    Q_OBJECT

public:
    explicit BoiteCboP(const QStringList& textes, QWidget* parent);

    /// Shows a text without telling of it.
    void Montre(const QString& texte);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The doctor typed in the box, or chose in its list, maybe the same text again.
    void Change(const QString& texte);
    /// Ctrl+Z in a box where nothing typed is left to undo.
    void Defait();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    int RangDe(const QString& texte) const;
    void Suit(const QString& texte);
};

} // namespace medication
