// SPDX-License-Identifier: GPL-3.0-or-later
// What can be dropped on the main window.
#include "host/window/mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** The logs and folders that are dragged; none where there is anything else among them. */
QStringList logsOf(const QMimeData &data)
{
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls) {
        const QFileInfo file(url.toLocalFile());
        const bool isLog = file.isFile() && file.suffix().compare(u"csv"_s, Qt::CaseInsensitive) == 0;
        if (!isLog && !file.isDir())
            return {};
        paths.append(file.filePath());
    }
    return paths;
}

} // namespace

/** Logs of radios, where they can be imported now. */
void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!m_import->isEnabled() || logsOf(*event->mimeData()).isEmpty())
        return;
    event->setDropAction(Qt::CopyAction); // where it were a move, the logs would be deleted then
    event->accept();
}

/** Queued: until the drop is done, the program that the files come from waits. */
void MainWindow::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    QMetaObject::invokeMethod(
        this,
        [this, logs = logsOf(*event->mimeData())] {
            if (m_import->isEnabled() && !logs.isEmpty() && !QApplication::activeModalWidget())
                importLogs(logs);
        },
        Qt::QueuedConnection);
}

} // namespace Host
