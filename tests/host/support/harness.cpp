// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/harness.h"
#include "tests/support/files.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

// Sanitizers must come first, and so stand before the shim in every call.
const QString Preloaded = QStringLiteral(PRELOADED);

} // namespace

Home::Home()
{
    for (const QString &name : {u"run"_s, u"tmp"_s, u"home"_s})
        QDir(m_root.path()).mkdir(name);
    QFile::setPermissions(m_root.filePath(u"run"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString Home::makeLogbook(const QByteArray &document) const
{
    QDir(m_root.path()).mkdir(u"log"_s);
    if (!document.isNull() && !Test::write(dataFile(), document))
        qFatal("a test cannot write a logbook");
    return logbook();
}

QStringList Home::leftovers() const
{
    QStringList names;
    for (const QString &place : {u"run"_s, u"tmp"_s}) {
        QDirIterator it(m_root.filePath(place), QDir::Files | QDir::Hidden | QDir::System,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            names.append(it.next());
    }
    return names;
}

QProcessEnvironment Home::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
        environment.remove(variable);
    const QString home = m_root.filePath(u"home"_s);
    environment.insert(u"HOME"_s, home);
    environment.insert(u"XDG_DATA_HOME"_s, home);
    environment.insert(u"XDG_CONFIG_HOME"_s, home);
    environment.insert(u"XDG_STATE_HOME"_s, home);
    environment.insert(u"XDG_CACHE_HOME"_s, home);
    environment.insert(u"XDG_RUNTIME_DIR"_s, m_root.filePath(u"run"_s));
    environment.insert(u"TMPDIR"_s, m_root.filePath(u"tmp"_s));
    return environment;
}

void Harness::drive(QProcessEnvironment *environment)
{
    environment->insert(u"QT_PLUGIN_PATH"_s, QStringLiteral(DRIVER_PLUGINS));
    environment->insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"voltbokdriver"_s);
    environment->remove(u"VOLTBOK_SCRIPT"_s);
}

void Harness::preload(QProcessEnvironment *environment)
{
    environment->insert(u"LD_PRELOAD"_s, Preloaded);
}

QByteArray Harness::command(const QStringList &words)
{
    return words.join(u'\t').toUtf8() + '\n';
}

QStringList Harness::complaints(const QByteArray &standardError)
{
    return QString::fromUtf8(standardError).split(u'\n').filter(u"voltbok: "_s);
}

QStringList Harness::sharedLeftovers(const QStringList &before)
{
    // What it would be called: a lock, a socket, a temporary folder.
    const QStringList patterns{u"voltbok-*.lock"_s, u"voltbok.*"_s, u"Voltbok*"_s, u"org.voltbok*"_s};
    QStringList names;
    for (const QString &place : {u"/tmp"_s, u"/dev/shm"_s, u"/var/tmp"_s}) {
        for (const QString &name : QDir(place).entryList(patterns, QDir::AllEntries | QDir::System))
            names.append(place + u'/' + name);
    }
    names.removeIf([&](const QString &name) { return before.contains(name); });
    return names;
}
