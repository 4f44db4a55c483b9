#include "drugbank/windows/VueDocument.h"

#include "application/windows/Sablier.h"
#include "drugbank/AdresseDocument.h"
#include "drugbank/messagesDocument.h"

#include <QBuffer>
#include <QImageReader>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>

namespace drugbank {

namespace {

constexpr int kLenteur = 300;          // ms, then the wait is named
constexpr int kRessources = 200;       // of one page
constexpr qint64 kPixels = 20'000'000; // of one picture

QImage LitImage(QByteArray octets)
{
    QBuffer tampon(&octets);
    QImageReader lecture(&tampon);
    const QSize taille = lecture.size();
    QImage image;
    if (taille.isValid() && qint64(taille.width()) * taille.height() <= kPixels) {
        image = lecture.read();
    }
    if (image.isNull()) {
        // An absent picture would let the toolkit look for its file by itself.
        image = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
    }
    return image;
}

bool EstUneImage(QByteArray octets)
{
    QBuffer tampon(&octets);
    return QImageReader(&tampon).canRead();
}

/// The positions of the characters that stand for a picture; those of one format side by side are one
/// fragment.
QList<int> PlacesDesImages(const QTextDocument& document)
{
    QList<int> places;
    for (QTextBlock bloc = document.begin(); bloc.isValid(); bloc = bloc.next()) {
        for (auto mot = bloc.begin(); !mot.atEnd(); ++mot) {
            const QTextFragment fragment = mot.fragment();
            for (int i = 0; fragment.charFormat().isImageFormat() && i < fragment.length(); ++i) {
                places.append(fragment.position() + i);
            }
        }
    }
    return places;
}

} // namespace

VueDocument::VueDocument(QWidget* parent, int delai) : QTextBrowser(parent), chargeur_(delai)
{
    setOpenLinks(false);
    lenteur_.setSingleShot(true);
    lenteur_.setInterval(kLenteur);
    connect(&lenteur_, &QTimer::timeout, this, [this] { setPlaceholderText(messages::Chargement()); });
    connect(this, &QTextBrowser::anchorClicked, this, &VueDocument::Suit);
}

void VueDocument::Montre(const QString& adresse)
{
    precedentes_.clear();
    Va(AdresseDepuisTexte(adresse));
}

void VueDocument::MontrePhrase(const QString& phrase)
{
    Montre({});
    Pose(PageDUnePhrase(phrase));
    Q_EMIT Change();
}

void VueDocument::Recule()
{
    if (PeutReculer()) {
        Va(precedentes_.takeLast());
    }
}

QUrl VueDocument::AOuvrirDehors() const
{
    const QUrl adresse = offerte_.isEmpty() ? page_ : offerte_;
    return SOuvreDehors(adresse) ? adresse : QUrl();
}

void VueDocument::Va(const QUrl& adresse)
{
    chargeur_.Abandonne();
    lenteur_.stop();
    setPlaceholderText({});
    page_ = adresse;
    offerte_.clear();
    remarque_.clear();
    ressources_.clear();
    demandees_ = 0;
    attendues_ = 0;
    Pose({});
    DemandePage(adresse);
    Q_EMIT Change();
}

void VueDocument::DemandePage(const QUrl& adresse)
{
    switch (SortDeLAdresse(adresse)) {
    case Sort::Vide:
        return;
    case Sort::Fichier:
        RecoitPage(LitLeFichier(adresse, kPageMaximum), adresse);
        return;
    case Sort::Boucle:
        lenteur_.start();
        chargeur_.Demande(adresse, kPageMaximum, [this](const Recu& recu, const QUrl& finale) {
            RecoitPage(recu, finale);
            Q_EMIT Change();
        });
        return;
    case Sort::Dehors:
        Pose(PageDUnePhrase(messages::DocumentDehors(adresse.toDisplayString())));
        return;
    case Sort::Refuse:
        Pose(PageDUnePhrase(messages::AdresseRefusee()));
    }
}

void VueDocument::RecoitPage(const Recu& recu, const QUrl& adresse)
{
    lenteur_.stop();
    setPlaceholderText({});
    page_ = adresse;
    if (!recu.Manque.isEmpty()) {
        Pose(PageDUnePhrase(recu.Manque));
        return;
    }
    if (EstUneImage(recu.Octets)) {
        ressources_.insert(adresse, recu.Octets);
        Pose(QStringLiteral("<p><img src=\"%1\"></p>").arg(QString::fromUtf8(adresse.toEncoded())));
        return;
    }
    const QString html = HtmlDeLaPage(recu.Octets, recu.Jeu);
    Pose(html.isNull() ? PageDUnePhrase(messages::DocumentSansTexte()) : html);
    scrollToAnchor(adresse.fragment());
}

void VueDocument::Pose(const QString& html)
{
    const application::Sablier sablier;
    html_ = html;
    images_.clear();
    auto* neuf = new QTextDocument(this);
    neuf->setUndoRedoEnabled(false);
    neuf->setDefaultFont(font());
    neuf->setHtml(html);
    NommeImages(*neuf);
    QTextDocument* ancien = document();
    const bool propre = ancien->parent() == this; // the first one belongs to the toolkit
    setDocument(neuf);
    if (propre) {
        delete ancien;
    }
}

void VueDocument::NommeImages(QTextDocument& document)
{
    for (const int place : PlacesDesImages(document)) {
        QTextCursor curseur(&document);
        curseur.setPosition(place);
        curseur.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
        QTextImageFormat format = curseur.charFormat().toImageFormat();
        if (!format.name().startsWith(QLatin1String("data:"))) {
            const QString nom = QStringLiteral("wb:%1").arg(images_.size());
            images_.insert(nom, page_.resolved(QUrl(format.name())));
            format.setName(nom);
            curseur.setCharFormat(format);
        }
    }
}

QVariant VueDocument::loadResource(int type, const QUrl& nom)
{
    if (nom.scheme() == QLatin1String("data")) {
        return {}; // its bytes are the address itself: the toolkit reads them
    }
    const QByteArray octets = Ressource(images_.value(nom.toString(), page_.resolved(nom)));
    if (type == QTextDocument::ImageResource) {
        return LitImage(octets);
    }
    return type == QTextDocument::StyleSheetResource ? TexteDeLaPage(octets) : QStringLiteral("");
}

QByteArray VueDocument::Ressource(const QUrl& adresse)
{
    if (const auto connue = ressources_.constFind(adresse); connue != ressources_.constEnd()) {
        return *connue;
    }
    const Sort sort = SortDuLien(adresse, page_);
    const bool chargee = sort == Sort::Fichier || sort == Sort::Boucle;
    if (!chargee || ++demandees_ > kRessources) {
        return {};
    }
    if (sort == Sort::Fichier) {
        return LitLeFichier(adresse, kRessourceMaximum).Octets;
    }
    DemandeRessource(adresse);
    return {};
}

void VueDocument::DemandeRessource(const QUrl& adresse)
{
    ressources_.insert(adresse, {});
    ++attendues_;
    chargeur_.Demande(adresse, kRessourceMaximum, [this, adresse](const Recu& recu, const QUrl&) {
        ressources_.insert(adresse, recu.Octets);
        if (--attendues_ == 0) {
            const int place = verticalScrollBar()->value();
            Pose(QString(html_));
            verticalScrollBar()->setValue(place);
            Q_EMIT Change();
        }
    });
}

void VueDocument::Suit(const QUrl& lien)
{
    const QUrl cible = page_.resolved(lien);
    remarque_.clear();
    offerte_.clear();
    if (cible.matches(page_, QUrl::RemoveFragment)) {
        scrollToAnchor(cible.fragment());
        Q_EMIT Change();
        return;
    }
    const Sort sort = SortDuLien(cible, page_);
    if (sort == Sort::Fichier || sort == Sort::Boucle) {
        precedentes_.append(page_);
        Va(cible);
        return;
    }
    remarque_ = sort == Sort::Dehors ? messages::LienDehors(cible.host()) : messages::LienRefuse();
    offerte_ = sort == Sort::Dehors ? cible : QUrl();
    Q_EMIT Change();
}

void VueDocument::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Left && event->modifiers() == Qt::AltModifier) {
        Recule();
        return;
    }
    QTextBrowser::keyPressEvent(event);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept(); // else it would press the window's primary button
    }
}

} // namespace drugbank
