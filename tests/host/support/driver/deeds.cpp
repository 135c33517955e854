// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/driver/deeds.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTimer>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int PatienceMs = 3000;

QMainWindow *mainWindow()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *found = qobject_cast<QMainWindow *>(window);
        if (found && found->isVisible() && found->inherits("Host::MainWindow"))
            return found;
    }
    return nullptr;
}

QPushButton *button(const QWidget *window, const QString &text)
{
    if (!window)
        return nullptr;
    for (QPushButton *button : window->findChildren<QPushButton *>()) {
        if (button->isVisible() && button->isEnabled() && button->text().remove(u'&') == text)
            return button;
    }
    return nullptr;
}

QAction *action(const QString &text)
{
    const QMainWindow *window = mainWindow();
    if (!window)
        return nullptr;
    for (QAction *action : window->findChildren<QAction *>()) {
        if (action->isEnabled() && action->text().remove(u'&') == text)
            return action;
    }
    return nullptr;
}

/** Lets the program run until it is so, or it takes too long. */
bool waitFor(const std::function<bool()> &isSo)
{
    QElapsedTimer clock;
    clock.start();
    while (!isSo()) {
        if (clock.elapsed() > PatienceMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    return true;
}

QAbstractItemView *table(const QWidget *window, const QString &name)
{
    for (auto *view : window->findChildren<QAbstractItemView *>()) {
        if (view->accessibleName() == name)
            return view;
    }
    return nullptr;
}

int column(const QAbstractItemView &view, const QString &title)
{
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        if (view.model()->headerData(column, Qt::Horizontal).toString() == title)
            return column;
    }
    return -1;
}

QString text(const QAbstractItemView &view, int row, const QString &title)
{
    return view.model()->index(row, column(view, title)).data().toString();
}

/**
 * Opens the box of this title, and does something in it again and again until it says that nothing is left to
 * do. @return whether the box then closed with what it was for.
 */
bool inBox(const QString &title, const std::function<void()> &open,
           const std::function<bool(QDialog &)> &isOver)
{
    bool isAccepted = false;
    bool isClosed = false;
    bool isBusy = false;
    QDialog *seen = nullptr;
    QElapsedTimer clock;
    clock.start();
    QTimer hand;
    QObject::connect(&hand, &QTimer::timeout, [&] {
        auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!box || isBusy)
            return;
        if (qobject_cast<QMessageBox *>(box))
            return box->reject();
        if (box->windowTitle() != title)
            return;
        if (!seen) {
            seen = box;
            QObject::connect(box, &QDialog::accepted, &hand, [&] { isAccepted = true; });
            QObject::connect(box, &QDialog::finished, &hand, [&] { isClosed = true; });
        }
        isBusy = true;
        const bool over = isOver(*box) || clock.elapsed() > PatienceMs;
        isBusy = false;
        if (over && !isClosed)
            box->reject();
    });
    hand.start(2);
    open();
    waitFor([&] { return isClosed || (!seen && clock.elapsed() > PatienceMs / 2); });
    return isAccepted;
}

/** The table of the flights, on show. */
QAbstractItemView *flights()
{
    QMainWindow *window = mainWindow();
    auto *panel = window ? window->findChild<QTabWidget *>() : nullptr;
    if (!panel)
        return nullptr;
    if (!panel->isVisible()) {
        if (QAction *show = action(u"Side Panel"_s))
            show->trigger();
    }
    for (int tab = 0; tab < panel->count(); ++tab) {
        if (panel->tabText(tab) == u"Flights")
            panel->setCurrentIndex(tab);
    }
    QAbstractItemView *view = table(panel, u"Flights"_s);
    return view && waitFor([&] { return view->model()->rowCount() > 0; }) ? view : nullptr;
}

} // namespace

bool Deeds::move(const QString &name)
{
    QAction *found = action(name);
    if (!found)
        return false;
    bool isRefused = false;
    QTimer hand; // it may tell why not
    QObject::connect(&hand, &QTimer::timeout, [&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            isRefused = true;
            box->reject();
        }
    });
    hand.start(2);
    found->trigger();
    return !isRefused;
}

bool Deeds::editFlight(int number, const Ear &ear)
{
    QAbstractItemView *view = flights();
    if (!view)
        return false;
    const int row = number % view->model()->rowCount();
    const QString time = text(*view, row, u"Time"_s);
    const QString model = text(*view, row, u"Model"_s);
    const QString old = text(*view, row, u"Location"_s);
    const QString changed = old == u"Meadow" ? u"Club field"_s : u"Meadow"_s;
    const QModelIndex cell = view->model()->index(row, column(*view, u"Location"_s));
    const auto isUnique = [&] { // others of the same second cannot be told from it
        int same = 0;
        for (int i = 0; i < view->model()->rowCount(); ++i)
            same += text(*view, i, u"Time"_s) == time && text(*view, i, u"Model"_s) == model ? 1 : 0;
        return same == 1;
    };
    if (!cell.flags().testFlag(Qt::ItemIsEditable) || !isUnique())
        return false;
    view->setCurrentIndex(cell);
    view->edit(cell);
    auto *editor = view->viewport()->findChild<QComboBox *>();
    if (!editor)
        return false;
    editor->setCurrentText(changed);
    ear({model, time, old, changed});
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(editor, &key);
    return waitFor([&] { // it is sorted anew where that is how it is sorted
        for (int i = 0; i < view->model()->rowCount(); ++i) {
            if (text(*view, i, u"Time"_s) == time && text(*view, i, u"Model"_s) == model)
                return text(*view, i, u"Location"_s) == changed;
        }
        return false;
    });
}

bool Deeds::restoreOldest(const Ear &ear)
{
    QAction *backups = action(u"Backups…"_s);
    if (!backups)
        return false;
    const auto restore = [&ear](QDialog &box) {
        QAbstractItemView *copies = table(&box, u"Copies, the newest first"_s);
        const int oldest = copies->model()->rowCount() - 1;
        if (copies->currentIndex().row() != oldest) {
            copies->setCurrentIndex(copies->model()->index(oldest, 0));
            return false;
        }
        QPushButton *pressed = button(&box, u"Restore"_s);
        if (!pressed)
            return false; // it is being read
        ear({});
        pressed->click();
        return true;
    };
    return inBox(
        u"Backups"_s, [&] { backups->trigger(); }, restore);
}

bool Deeds::import(const QString &path, const Ear &ear)
{
    QMainWindow *window = mainWindow();
    if (!window || !action(u"Import Radio Logs…"_s))
        return false;
    const auto drop = [&] {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &enter);
        QDropEvent event(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &event);
    };
    const auto import = [&](QDialog &box) {
        QAbstractItemView *rows = table(&box, u"Discharges in the logs"_s);
        if (rows->model()->rowCount() == 0)
            return false; // it is being read
        if (rows->model()->rowCount() != 1 || !text(*rows, 0, u"What will happen"_s).startsWith(u"new"))
            return true;
        rows->model()->setData(rows->model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
        QPushButton *pressed = button(&box, u"Import"_s);
        if (!pressed)
            return false;
        ear({text(*rows, 0, u"Model"_s), text(*rows, 0, u"Battery"_s), text(*rows, 0, u"Start"_s),
             text(*rows, 0, u"mAh"_s).remove(QRegularExpression(u"\\D"_s))});
        pressed->click();
        return true;
    };
    return inBox(u"Import Radio Logs"_s, drop, import);
}

bool Deeds::isMergeOffered()
{
    return button(mainWindow(), u"Merge…"_s) != nullptr;
}

bool Deeds::merge(const Ear &ear)
{
    QPushButton *offer = button(mainWindow(), u"Merge…"_s);
    if (!offer)
        return false;
    const auto merge = [&](QDialog &box) {
        static const QRegularExpression version(u"voltbok\\.sync-conflict-[0-9-]+\\.xml"_s);
        QString name;
        for (const QLabel *label : box.findChildren<QLabel *>())
            name += version.match(label->text()).captured();
        QPushButton *pressed = button(&box, u"Merge"_s);
        if (!pressed)
            pressed = button(&box, u"Put Aside"_s);
        if (!pressed)
            return true;
        ear({name});
        pressed->click();
        return true;
    };
    return inBox(
        u"Merge"_s, [&] { offer->click(); }, merge);
}
