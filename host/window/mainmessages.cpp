// SPDX-License-Identifier: GPL-3.0-or-later
// What the main window says by itself, above the logbook.
#include "host/window/mainwindow.h"

#include "host/window/messagebar.h"

#include <QComboBox>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {

void MainWindow::tell(const QString &matter, const QString &text)
{
    m_messages->tell(matter, text);
}

void MainWindow::goOnIn(const StorageFolder &folder, std::shared_ptr<FolderLock> lock)
{
    open(folder, std::move(lock));
    tell(u"moved"_s,
         tr("The logbook is now kept in “%1”. Open this folder the next time, too.").arg(folder.path()));
}

/** An empty logbook greets with three ways on, until there is a battery or a model. */
void MainWindow::greet()
{
    const QString matter = u"greeting"_s;
    const auto *batteries = findChild<QComboBox *>(u"cb_batteryData"_s);
    if (batteries->count() > 0 || m_models->count() > 0)
        return m_messages->retract(matter);
    m_messages->tell(matter,
                     tr("This logbook is empty. Add your first battery, look around in the sample, or choose "
                        "the folder of a logbook that you have already."),
                     {{tr("Add a Battery"), [this] { addFirstBattery(); }},
                      {tr("Open the Sample"), [this] { requestFolder(StorageFolder::ofDemo().path()); }},
                      {tr("Choose a Folder…"), [this] { chooseFolder(); }}});
}

void MainWindow::addFirstBattery()
{
    if (mayLoseInput())
        showPage(u"add-battery"_s);
}

} // namespace Host
