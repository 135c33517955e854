// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/preferences/languages.h"

#include "host/preferences/settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

const QString Folder = u":/Resources/Translations/"_s;
const QString Catalogue = u"voltbok"_s;
const QString English = u"en"_s;

} // namespace

Languages::Languages(QObject *parent)
    : RotavexPlugin(u"Voltbok"_s, QIcon(), QString(), QString(), Folder, parent)
{
    registerTranslator(Catalogue);
}

QStringList Languages::all()
{
    QStringList codes;
    const QStringList files = QDir(Folder).entryList({Catalogue + u"_*.qm"_s}, QDir::Files);
    for (const QString &file : files)
        codes.append(file.section(u'.', 0, 0).section(u'_', 1));
    return codes;
}

/** Qt would name the country, too. */
QString Languages::nameOf(const QString &code)
{
    if (code == English)
        return u"English"_s;
    QTranslator translation;
    if (!translation.load(Folder + Catalogue + u'_' + code))
        return code;
    return translation.translate("Host::Languages", "English", "this language, in itself");
}

QString Languages::ofSystem()
{
    const QStringList there = all();
    const QStringList wishes = QLocale::system().uiLanguages();
    for (const QString &wish : wishes) {
        const auto isMeant = [language = QLocale(wish).language()](const QString &code) {
            return QLocale(code).language() == language;
        };
        if (const auto found = std::find_if(there.cbegin(), there.cend(), isMeant); found != there.cend())
            return *found;
    }
    return English;
}

QString Languages::chosen()
{
    const QString code = Settings().language();
    return all().contains(code) ? code : QString();
}

void Languages::choose(const QString &code)
{
    Settings().setLanguage(code);
    speakChosen();
}

void Languages::speakChosen()
{
    const QString code = chosen();
    speak(code.isEmpty() ? ofSystem() : code);
}

void Languages::speak(const QString &code)
{
    m_spoken = code;
    const QLocale locale(code);
    speakQt(locale);
    switchLanguage(locale);
}

/** Qt's buttons and dialogs, where their translations are installed. */
void Languages::speakQt(const QLocale &locale)
{
    QCoreApplication::removeTranslator(&m_qt);
    if (m_qt.load(locale, u"qtbase"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
}

void Languages::discoverDevices(bool flag)
{
    Q_UNUSED(flag)
}

} // namespace Host
