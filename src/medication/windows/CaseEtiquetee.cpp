#include "medication/windows/CaseEtiquetee.h"

#include "medication/windows/EtiquetteMuette.h"

#include <QStyleOptionButton>

namespace medication {

CaseEtiquetee::CaseEtiquetee(const QString& nom, const QString& nomEtiquette, const QString& texte,
                             QWidget* parent)
    : QCheckBox(texte, parent), etiquette_(new EtiquetteMuette(QString(texte).remove(u'&'), this))
{
    setObjectName(nom);
    etiquette_->setObjectName(nomEtiquette);
}

void CaseEtiquetee::resizeEvent(QResizeEvent* event)
{
    QCheckBox::resizeEvent(event);
    QStyleOptionButton option;
    initStyleOption(&option);
    etiquette_->setGeometry(style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this));
}

} // namespace medication
