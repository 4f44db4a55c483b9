#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QToolButton;

namespace drugbank {

class VueDocument;

/// The view of documents with its heading and its commands: back, the list of the documents, the system's
/// browser.
class PanneauDocument : public QWidget
{
    Q_OBJECT

public:
    explicit PanneauDocument(QWidget* parent);

    VueDocument* Vue() const { return vue_; }
    /// What Tab reaches, in its order.
    QList<QWidget*> Controles() const;
    /// One sentence below the page, until the next one; an empty text for none.
    void Remarque(const QString& phrase);

Q_SIGNALS:
    /// `CmdNavigateur`: a path or an address for the system's browser.
    void AOuvrir(const QString& document);
    /// `CmdDocuments`.
    void DocumentsDemandes();

private:
    void Suit();
    void DemandeNavigateur();

    VueDocument* vue_;
    QToolButton* precedent_;
    QPushButton* documents_;
    QPushButton* navigateur_;
    QLabel* remarque_;
};

} // namespace drugbank
