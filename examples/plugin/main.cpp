// SPDX-License-Identifier: GPL-3.0-or-later
// A host with a plugin: plugin FOLDER. The menus are made anew for each language.
#include "logbookplugin.h"

#include <QApplication>
#include <QLocale>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace {

void buildMenus(QMainWindow &window, LogbookPlugin &plugin)
{
    window.menuBar()->clear();
    plugin.addTo(window.menuBar()->addMenu(LogbookPlugin::tr("&Tools")));
    QMenu *languages = window.menuBar()->addMenu(LogbookPlugin::tr("La&nguage"));
    for (const QLocale::Language language : {QLocale::English, QLocale::German}) {
        const QLocale locale(language);
        languages->addAction(locale.nativeLanguageName(), &plugin, [&window, &plugin, locale] {
            plugin.switchLanguage(locale);
            QMetaObject::invokeMethod( // not while the menu that was clicked is in use
                &window, [&window, &plugin] { buildMenus(window, plugin); }, Qt::QueuedConnection);
        });
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    LogbookPlugin plugin(QApplication::arguments().value(1, QStringLiteral(".")));
    plugin.switchLanguage(QLocale());
    QMainWindow window;
    buildMenus(window, plugin);
    window.show();
    return QApplication::exec();
}
