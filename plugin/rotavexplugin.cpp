// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin/rotavexplugin.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView BaseTranslation{"rotavexplugin"};
constexpr QLatin1StringView HostTranslationDirectory{":/Resources/Translations/"};
constexpr QLatin1StringView LocaleSeparator{"_"};

} // namespace

// Has no owner on purpose: plugins may still save while the process takes itself apart.
QSettings *RotavexPlugin::rotavexSettings = new QSettings(u"tarnwheel"_s, u"Rotavexm"_s);

RotavexPlugin::RotavexPlugin(const QString &name, const QIcon &icon, const QString &description,
                             const QString &copyright, const QString &directory, QObject *parent)
    : QObject(parent)
    , m_name(name)
    , m_icon(icon)
    , m_description(description)
    , m_copyright(copyright)
    , translationDirectory(directory)
{
    // The type is never complete here; registered by name, it can still be passed by queued signals.
    qRegisterMetaType<RotavexDevice *>();
    registerTranslator(BaseTranslation);
}

RotavexPlugin::~RotavexPlugin() = default;

QString RotavexPlugin::name() const
{
    return m_name;
}

const QIcon &RotavexPlugin::icon() const
{
    return m_icon;
}

QString RotavexPlugin::description() const
{
    return m_description;
}

QString RotavexPlugin::copyright() const
{
    return m_copyright;
}

void RotavexPlugin::setOrchestrator(RotavexOrchestrator *orchestrator)
{
    m_orchestrator = orchestrator;
}

RotavexOrchestrator *RotavexPlugin::orchestrator() const
{
    return m_orchestrator;
}

void RotavexPlugin::registerTranslator(const QString &name)
{
    if (translators.contains(name))
        return;
    translators.insert(name, new QTranslator(this));
}

void RotavexPlugin::switchLanguage(const QLocale &locale)
{
    if (translationDirectory.isEmpty())
        return;

    for (auto it = translators.cbegin(); it != translators.cend(); ++it) {
        QTranslator *translator = it.value();
        QCoreApplication::removeTranslator(translator);
        // Intentional: the fallback is the base class's file whatever the key; a derived plugin's translator
        // gets it, too.
        if (translator->load(locale, it.key(), LocaleSeparator, translationDirectory) ||
            translator->load(locale, BaseTranslation, LocaleSeparator, HostTranslationDirectory)) {
            QCoreApplication::installTranslator(translator);
        }
    }
}

QStringList RotavexPlugin::loadSettings(const QString &group, QObject *target)
{
    rotavexSettings->beginGroup(m_name);
    rotavexSettings->beginGroup(group);
    const QStringList keys = rotavexSettings->childKeys();
    for (const QString &key : keys)
        target->setProperty(key.toLatin1().constData(), rotavexSettings->value(key));
    rotavexSettings->endGroup();
    rotavexSettings->endGroup();
    return keys;
}

void RotavexPlugin::saveSetting(const QString &group, const QString &key, QVariant value)
{
    rotavexSettings->beginGroup(m_name);
    rotavexSettings->beginGroup(group);
    rotavexSettings->setValue(key, value);
    rotavexSettings->endGroup();
    rotavexSettings->endGroup();
    rotavexSettings->sync();
}
