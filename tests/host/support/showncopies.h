// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/cataloguefile.h"
#include "host/window/backupsdialog.h"
#include "host/window/copiesmodel.h"
#include "host/window/differencesmodel.h"
#include "tests/host/support/hostwindow.h"
#include "tests/support/brokendisk.h"

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

/** The dialog of the copies, as a pilot uses it. */
namespace ShownCopies {

/** A logbook with one more location than that of the window. */
inline QByteArray other()
{
    const QStringList packs{u"Pack A"_s, u"Pack B"_s};
    return Test::document({{{packs.first(), true}, {packs.last()}},
                           {{u"Firebrand"_s, packs}, {u"Skylark"_s, packs}},
                           {u"Long Meadow"_s, u"Slope"_s}});
}

/** A copy of an hour ago, older than what the window has copied. */
inline QString putCopy(const HostWindow &window, const QByteArray &bytes, const QByteArray &beside = {})
{
    const Host::StorageFolder folder(window.path());
    Host::Copy copy;
    copy.time = QDateTime::currentDateTimeUtc().addSecs(-3600);
    const QString name = u"voltbok-%1.xml"_s.arg(copy.time.toLocalTime().toString(u"yyyyMMdd-HHmmss-zzz"));
    folder.backups().mkpath(u"."_s);
    if (!Test::write(folder.backups().filePath(name), bytes) ||
        (!beside.isEmpty() &&
         !Test::write(folder.backups().filePath(Host::Backups::measuredName(name)), beside)))
        qFatal("a test cannot write a copy");
    return name;
}

/** The dialog, on show beside the window. */
struct Shown
{
    explicit Shown(HostWindow &window)
        : dialog(window.logbook(), Host::StorageFolder(window.path()))
        , copies(dialog.m_copies)
        , differences(dialog.m_differences)
        , table(dialog.m_table)
    {
        dialog.show();
    }

    QPushButton *button(const QString &caption) const
    {
        for (auto *button : dialog.findChildren<QPushButton *>()) {
            if (button->text().remove(u'&') == caption)
                return button;
        }
        return nullptr;
    }
    QString text(int row, int column = 2) const { return copies->index(row, column).data().toString(); }
    /** What the dialog says in whole sentences. */
    QStringList texts() const
    {
        QStringList texts;
        for (const auto *label : dialog.findChildren<QLabel *>()) {
            if (label->isVisible())
                texts.append(label->text());
        }
        return texts;
    }
    bool isCompared() const { return copies->known() == copies->rowCount(); }
    /** Chooses a copy and waits for its preview. */
    bool choose(int row)
    {
        table->selectRow(row);
        return QTest::qWaitFor([this] { return button(u"Restore"_s)->isEnabled(); });
    }
    void press(const QString &caption) { QTest::mouseClick(button(caption), Qt::LeftButton); }

    Host::BackupsDialog dialog;
    Host::CopiesModel *copies;
    Host::DifferencesModel *differences;
    QTableView *table;
};

} // namespace ShownCopies
