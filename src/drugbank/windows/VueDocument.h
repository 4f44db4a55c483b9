#pragma once

#include "drugbank/windows/ChargeurBoucle.h"

#include <QHash>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>

namespace drugbank {

/// Shows a page: a file, or what a server of this computer gives. It runs no script, and neither the page nor
/// anything in it is loaded from elsewhere; a link that leads there is offered, not followed.
class VueDocument : public QTextBrowser
{
    Q_OBJECT

public:
    /// `delai` in milliseconds, what a server has for an answer.
    explicit VueDocument(QWidget* parent, int delai = 10'000);

    /// Shows what an address of the program or of a bank gives. "about:blank" shows nothing.
    void Montre(const QString& adresse);
    /// Shows one sentence, at no address.
    void MontrePhrase(const QString& phrase);
    /// Back to the page whose link was followed.
    void Recule();

    /// The address of what is shown, after links and redirections.
    QUrl Adresse() const { return page_; }
    /// The title of the page, else empty.
    QString Titre() const { return document()->metaInformation(QTextDocument::DocumentTitle); }
    /// What the doctor may have opened in the system's browser: a link that was not followed, else the page
    /// itself. Empty for nothing.
    QUrl AOuvrirDehors() const;
    /// What the last click on a link came to, when it was not followed; empty otherwise.
    const QString& Remarque() const { return remarque_; }
    bool PeutReculer() const { return !precedentes_.isEmpty(); }

Q_SIGNALS:
    /// Another page, another remark.
    void Change();

protected:
    QVariant loadResource(int type, const QUrl& nom) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Va(const QUrl& adresse);
    void DemandePage(const QUrl& adresse);
    void RecoitPage(const Recu& recu, const QUrl& adresse);
    void Pose(const QString& html);
    /// Gives the pictures names of the view's own: the toolkit would look for a file of the page's name
    /// itself.
    void NommeImages(QTextDocument& document);
    void Suit(const QUrl& lien);
    QByteArray Ressource(const QUrl& adresse);
    void DemandeRessource(const QUrl& adresse);

    ChargeurBoucle chargeur_;
    QTimer lenteur_;
    QUrl page_;
    QUrl offerte_;
    QString remarque_;
    QString html_;
    QList<QUrl> precedentes_;
    QHash<QUrl, QByteArray> ressources_; ///< of the page, from servers
    QHash<QString, QUrl> images_;        ///< addresses of the pictures by their own names
    int demandees_ = 0;                  ///< what this page has asked for
    int attendues_ = 0;                  ///< answers still to come
};

} // namespace drugbank
