// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/hostwindow.h"
#include "tests/host/support/plainlogbook.h"

#include "host/data/cataloguefile.h"
#include "host/window/filterbar.h"
#include "host/window/flightstab.h"
#include "host/window/flightstable.h"
#include "host/window/sidepanel.h"

#include <QApplication>
#include <QCheckBox>
#include <QDateEdit>
#include <QDialog>
#include <QDialogButtonBox>
#include <QTimer>

/** The program's window with the tab of flights on show. */
class FlightsWindow : public HostWindow
{
public:
    using Column = Host::FlightsModel::Column;

    explicit FlightsWindow(const Host::Catalogue &catalogue = PlainLogbook::logbook())
        : HostWindow(Host::CatalogueFile::save(catalogue).document)
    {
        showTab();
    }

    void showTab()
    {
        window().showPanel(true);
        window().m_panel->setCurrentIndex(Host::SidePanel::Flights);
        QCoreApplication::processEvents();
    }

    Host::FlightsTab &tab() { return *window().m_panel->m_flights; }
    Host::FlightsTable &table() { return *tab().m_table; }
    Host::FilterBar &bar() { return *tab().m_bar; }
    /** What the data file says. */
    Host::Catalogue stored() const { return Host::CatalogueFile::load(bytes()).catalogue; }

    int rowCount() { return table().model()->rowCount(); }
    QString cell(int row, Column column) { return table().model()->index(row, column).data().toString(); }
    /** What a column shows, from top to bottom. */
    QStringList column(Column column)
    {
        QStringList texts;
        for (int row = 0; row < rowCount(); ++row)
            texts.append(cell(row, column));
        return texts;
    }
    /** The row that shows this clock's time; -1 without one. */
    int rowAt(const QString &clock)
    {
        for (int row = 0; row < rowCount(); ++row) {
            if (cell(row, Column::Time).endsWith(clock))
                return row;
        }
        return -1;
    }

    void select(const QStringList &clocks)
    {
        table().clearSelection();
        for (const QString &clock : clocks)
            table().selectionModel()->select(table().model()->index(rowAt(clock), 0),
                                             QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    QStringList selected()
    {
        QStringList times;
        const QModelIndexList rows = table().selectionModel()->selectedRows(Column::Time);
        for (const QModelIndex &row : rows)
            times.append(row.data().toString().section(u' ', 1));
        times.sort();
        return times;
    }

    /** Opens a cell's editor by keyboard. Null when it has none. */
    template <typename Editor = QWidget>
    Editor *openEditor(const QString &clock, Column column)
    {
        table().setFocus();
        table().setCurrentIndex(table().model()->index(rowAt(clock), column));
        QTest::keyClick(&table(), Qt::Key_F2);
        return qobject_cast<Editor *>(
            table().viewport()->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly));
    }
    void endEditor(QWidget *editor, Qt::Key key = Qt::Key_Return)
    {
        QTest::keyClick(editor, key);
        QTest::qWait(1); // the editor ends when it has taken the key
        settleTab();
    }
    void settleTab()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QPushButton *command(const QString &caption)
    {
        const auto buttons = tab().findChildren<QPushButton *>();
        for (QPushButton *found : buttons) {
            if (found->text().remove(u'&') == caption)
                return found;
        }
        return nullptr;
    }
    void give(const QString &caption)
    {
        QPushButton *button = command(caption);
        QVERIFY2(button, qPrintable(caption));
        LogbookWindow::click(button);
        settleTab();
    }

    /** Gives a command whose dialog is then used like this. */
    template <typename Dialog>
    void give(const QString &caption, const std::function<void(Dialog &)> &use)
    {
        bool isUsed = false;
        QTimer::singleShot(0, &tab(), [&] {
            auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            isUsed = dialog;
            if (dialog)
                use(*dialog);
            while (QWidget *left = QApplication::activeModalWidget())
                static_cast<QDialog *>(left)->reject();
        });
        give(caption);
        QVERIFY2(isUsed, qPrintable(caption));
    }
    /** Clicks the button that does what a dialog is for. */
    static void confirm(QDialog &dialog)
    {
        const auto buttons = dialog.findChild<QDialogButtonBox *>()->buttons();
        for (QAbstractButton *button : buttons) {
            if (dialog.findChild<QDialogButtonBox *>()->buttonRole(button) == QDialogButtonBox::AcceptRole)
                LogbookWindow::click(button);
        }
    }
};
