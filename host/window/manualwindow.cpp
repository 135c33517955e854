// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/manualwindow.h"

#include <QFile>
#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int LinesOnShow = 40;
constexpr int CharactersOfALine = 90;

} // namespace

ManualWindow::ManualWindow(QWidget *parent)
    : QTextBrowser(parent)
{
    setWindowFlag(Qt::Window);
    setAttribute(Qt::WA_DeleteOnClose);
    setOpenExternalLinks(true);
    setSearchPaths({u":/manual"_s});
    resize(fontMetrics().averageCharWidth() * CharactersOfALine, fontMetrics().lineSpacing() * LinesOnShow);
}

/** In English where nobody has translated it. */
void ManualWindow::read(const QString &language)
{
    setWindowTitle(tr("Voltbok Manual"));
    setAccessibleName(windowTitle());
    QFile file(u":/manual/manual_%1.md"_s.arg(language));
    if (!file.exists())
        file.setFileName(u":/manual/manual.md"_s);
    if (file.open(QFile::ReadOnly))
        setMarkdown(QString::fromUtf8(file.readAll()));
}

void ManualWindow::switchBeside(QWidget *parent, const QString &language)
{
    if (auto *window = parent->findChild<ManualWindow *>())
        window->read(language);
}

void ManualWindow::showBeside(QWidget *parent, const QString &language)
{
    auto *window = parent->findChild<ManualWindow *>();
    if (!window) {
        window = new ManualWindow(parent);
        window->read(language);
    }
    window->show();
    window->raise();
    window->activateWindow();
}

bool ManualWindow::event(QEvent *event)
{
    // Escape is for this window while it is in use, and not for the one that it belongs to.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QTextBrowser::event(event);
}

void ManualWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QTextBrowser::keyPressEvent(event);
}

} // namespace Host
