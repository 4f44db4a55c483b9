#pragma once

#include <QCheckBox>

namespace medication {

/// A check box whose words bear a name of their own: a label lies on them, shows nothing itself and leaves
/// the mouse to the box.
class CaseEtiquetee : public QCheckBox
{
    Q_OBJECT

public:
    /// `texte` bears the Alt letter.
    CaseEtiquetee(const QString& nom, const QString& nomEtiquette, const QString& texte, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* etiquette_;
};

} // namespace medication
