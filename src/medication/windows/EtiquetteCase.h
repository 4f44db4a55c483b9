#pragma once

#include <QAbstractButton>
#include <QLabel>

namespace medication {

/// The words beside a check box: a click on them is a click on the box.
class EtiquetteCase : public QLabel
{
    Q_OBJECT

public:
    EtiquetteCase(const QString& texte, QAbstractButton* caseACocher, QWidget* parent)
        : QLabel(texte, parent), case_(caseACocher)
    {
        setBuddy(case_);
        case_->setAccessibleName(QString(texte).remove(u'&'));
    }

protected:
    void mousePressEvent(QMouseEvent*) override { case_->click(); }

private:
    QAbstractButton* case_;
};

} // namespace medication
