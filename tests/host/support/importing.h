// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/cataloguefile.h"
#include "host/window/importdialog.h"
#include "host/window/importmodel.h"
#include "tests/host/support/flownsessions.h"
#include "tests/host/support/makeradiolog.h"
#include "tests/host/support/panel.h"
#include "tests/support/files.h"

#include <QComboBox>
#include <QTableView>
#include <QThread>

/** Imports in the window, as a pilot does them. */
namespace Importing {

inline constexpr int LongEnough = 20'000; // ms

/** The window over the logbook that flew, and a card. */
struct Flying
{
    explicit Flying(const Host::Catalogue &catalogue = Flown::logbook())
        : window(Host::CatalogueFile::save(catalogue).document)
    {
        QDir().mkpath(card());
    }

    QString card() const { return window.place() + u"/card/LOGS"_s; }
    QString measuredFile() const { return window.path() + u"/voltbok-measured.json"_s; }
    QByteArray measured() const { return Test::contents(measuredFile()); }
    const Host::Catalogue &catalogue() { return *window.logbook().catalogue(); }

    /** A log of one flight, as long as its rows say: one each second. */
    QString log(const QDateTime &start, int rows = 240, const QString &model = u"Skylark"_s) const
    {
        MadeLogs::Plan plan;
        plan.start = start;
        plan.flight = rows;
        return put(model + start.toString(u"-yyyy-MM-dd-HHmmss"_s) + u".csv"_s,
                   MadeLogs::Text().add(MadeLogs::flight({}, plan)).bytes());
    }
    QString put(const QString &name, const QByteArray &bytes) const
    {
        const QString path = card() + u'/' + name;
        if (!Test::write(path, bytes))
            qFatal("A log cannot be written.");
        return path;
    }
    /** One that nobody waits for; it takes no room on the disk. */
    QString endless() const
    {
        constexpr qint64 Size = qint64(16) << 30;
        QFile file(card() + u"/Skylark-2026-05-04-143800.csv"_s);
        if (!file.open(QFile::WriteOnly) || !file.resize(Size))
            qFatal("A log cannot be written.");
        return file.fileName();
    }

    HostWindow window;
};

/** The dialog on show, after these were read. */
struct Shown
{
    explicit Shown(Flying &flying, const QStringList &paths)
        : dialog(flying.window.logbook(), flying.window.questions)
    {
        dialog.show();
        dialog.add(paths);
        wait();
    }

    void wait()
    {
        QVERIFY(QTest::qWaitFor([this] { return !dialog.m_thread; }, LongEnough));
    }
    QStringList outcomes() const { return Panel::texts(*dialog.m_table, u"What will happen"_s); }
    QModelIndex cell(int row, int column) const { return dialog.m_model->index(row, column); }
    bool isTicked(int row) const { return cell(row, 0).data(Qt::CheckStateRole) == Qt::Checked; }
    /** With the keyboard. */
    void tick(int row) const
    {
        dialog.m_table->setCurrentIndex(cell(row, 0));
        QTest::keyClick(dialog.m_table, Qt::Key_Space);
    }
    /** Begins to choose a name. */
    QComboBox *edit(int row, int column, const QString &name) const
    {
        dialog.m_table->setCurrentIndex(cell(row, column));
        QTest::keyClick(dialog.m_table, Qt::Key_F2);
        auto *chooser = dialog.m_table->findChild<QComboBox *>();
        if (!chooser || chooser->accessibleName().isEmpty())
            qFatal("There is nothing to choose from, or it has no name.");
        chooser->setCurrentText(name);
        return chooser;
    }
    void choose(int row, int column, const QString &name) const
    {
        QTest::keyClick(edit(row, column, name), Qt::Key_Return);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void import() const { QTest::mouseClick(dialog.m_import, Qt::LeftButton); }
    QString message() const
    {
        return dialog.m_message->isVisible() ? dialog.m_message->accessibleName() : QString();
    }

    Host::ImportDialog dialog;
};

} // namespace Importing
