#include "outside/windows/LanceurQt.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

namespace outside {

namespace {

/// "https://..." or "mailto:..."; "C:/..." is a path.
bool EstAdresse(const QString& texte)
{
    return QUrl(texte).scheme().size() > 1;
}

/// Programs are named as on Windows; elsewhere they bear no ".exe".
QString ProgrammeDuSysteme(const QString& programme)
{
    const QString fin = QStringLiteral(".exe");
    const bool sansFin = programme.endsWith(fin) && !QFileInfo::exists(programme);
    return sansFin ? programme.chopped(fin.size()) : programme;
}

} // namespace

bool LanceurQt::Lance(const QString& programme, const QStringList& arguments)
{
    return QProcess::startDetached(ProgrammeDuSysteme(programme), arguments);
}

bool LanceurQt::Ouvre(const QString& documentOuAdresse)
{
    if (EstAdresse(documentOuAdresse)) {
        return QDesktopServices::openUrl(QUrl(documentOuAdresse));
    }
    return QFileInfo::exists(documentOuAdresse) &&
           QDesktopServices::openUrl(QUrl::fromLocalFile(documentOuAdresse));
}

} // namespace outside
