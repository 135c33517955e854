// SPDX-License-Identifier: GPL-3.0-or-later
// The language of the main window: its menu, and what follows from another choice.
#include "host/window/mainwindow.h"

#include "host/preferences/languages.h"
#include "host/window/manualwindow.h"
#include "host/window/openlogbook.h"

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {

void MainWindow::buildLanguageMenu(QMenu *view)
{
    if (!m_languages)
        return;
    QMenu *menu = view->addMenu(tr("&Language"));
    auto *group = new QActionGroup(menu);
    const auto add = [&](const QString &name, const QString &code) {
        QAction *action = menu->addAction(name, this, [this, code] { chooseLanguage(code); });
        action->setCheckable(true);
        action->setChecked(code == Languages::chosen());
        group->addAction(action);
    };
    add(tr("&System Language"), QString());
    menu->addSeparator();
    QStringList codes = Languages::all();
    std::sort(codes.begin(), codes.end(), [](const QString &one, const QString &other) {
        return QString::localeAwareCompare(Languages::nameOf(one), Languages::nameOf(other)) < 0;
    });
    for (const QString &code : std::as_const(codes))
        add(Languages::nameOf(code), code);
}

void MainWindow::chooseLanguage(const QString &code)
{
    m_languages->choose(code);
    tellAboutSettings();
}

/** Empty where none can be chosen. */
QString MainWindow::language() const
{
    return m_languages ? m_languages->spoken() : QString();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

/** The event comes when the menu that may have caused it is closed: the menus can be made anew. */
void MainWindow::retranslate()
{
    const bool isPanelShown = m_panelShown->isChecked();
    const QList<QAction *> menus = menuBar()->actions();
    for (const QAction *menu : menus)
        delete menu->menu();
    buildMenus();
    m_panelShown->setChecked(isPanelShown);
    updateActions();
    showTitle();
    if (m_logbook)
        greet();
    ManualWindow::switchBeside(this, language());
}

void MainWindow::showTitle()
{
    const bool isDemo = m_folder.path() == StorageFolder::ofDemo().path();
    setWindowTitle(isDemo ? tr("Voltbok - sample logbook")
                          : u"Voltbok - %1"_s.arg(QFileInfo(m_folder.path()).fileName()));
}

} // namespace Host
