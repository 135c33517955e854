// SPDX-License-Identifier: GPL-3.0-or-later
// Logs that come to the main window: on a card, or dropped on it.
#include "host/window/cardwatch.h"
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

void MainWindow::watchCards()
{
    m_cards = std::make_unique<CardWatch>(*this, *m_messages, *m_logbook);
    connect(m_cards.get(), &CardWatch::importRequested, this,
            [this](const QString &folder) { importLogs({folder}); });
}

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
