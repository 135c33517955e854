// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/scriptedquestions.h"
#include "tests/support/datafile.h"
#include "tests/support/logbookwindow.h"

#include "gui/pages.h"
#include "host/safety/backups.h"
#include "host/safety/folderlock.h"
#include "host/window/mainwindow.h"
#include "host/window/messagebar.h"
#include "host/window/openlogbook.h"
#include "host/window/savecare.h"
#include "tests/support/warnings.h"

#include <QComboBox>

#include <unistd.h>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/** The program's window on show over a logbook in a folder of its own; for tests that use it as a pilot does.
 */
class HostWindow
{
public:
    /** Opens the folder as the program does, with this data file or, without one, as a new folder. */
    explicit HostWindow(const QByteArray &document = sample())
    {
        Test::failOnWarnings();
        RotavexPlugin::rotavexSettings->clear();
        Host::Settings().clear();
        QFile::setPermissions(m_place.path(),
                              QFile::Permissions(0x7777)); // for tests that become another user
        makeRuntimeFolder();
        QDir().mkdir(path());
        QFile::setPermissions(path(), QFile::Permissions(0x7777));
        if (!document.isEmpty())
            put(document);
        restart();
    }

    /** The run-time folder of the other user, who finds no place for the second lock in root's home. */
    void makeRuntimeFolder()
    {
        constexpr uid_t Nobody = 65534;
        const QString run = m_place.filePath(u"run"_s);
        QDir().mkdir(run, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        if (geteuid() == 0 && chown(QFile::encodeName(run), Nobody, Nobody) != 0)
            qFatal("The tests cannot give a folder away.");
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(run));
    }

    /** Two batteries, one of them charged, two models that fly both, one location. */
    static QByteArray sample()
    {
        const QStringList packs{u"Pack A"_s, u"Pack B"_s};
        return Test::document({{{packs.first(), true}, {packs.last()}},
                               {{u"Firebrand"_s, packs}, {u"Skylark"_s, packs}},
                               {u"Long Meadow"_s}});
    }

    void restart()
    {
        close();
        m_window = std::make_unique<Host::MainWindow>(questions);
        const Host::StorageFolder folder(path());
        auto lock = std::make_shared<Host::FolderLock>();
        QCOMPARE(lock->take(folder).problem, QString());
        QObject::connect(m_window.get(), &Host::MainWindow::told, m_window.get(),
                         [this](const QString &text) { told.append(text); });
        m_window->open(folder, std::move(lock));
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        settle();
    }

    /** Ends the window as the program does, without a question. */
    void close() { m_window.reset(); }

    /** Lets the care and the keeper of the copies finish with what was done. */
    void settle()
    {
        QCoreApplication::processEvents();
        m_window->m_care->m_keeper.lookAndWait();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    Host::MainWindow &window() { return *m_window; }
    Host::SaveCare &care() { return *m_window->m_care; }
    Host::OpenLogbook &logbook() { return *m_window->m_logbook; }
    Host::MessageBar &messages() { return *m_window->m_messages; }
    VoltbokGui &gui() { return *m_window->m_gui; }
    Ui_VoltbokGui &ui() { return *gui().ui; }

    QString place() const { return m_place.path(); }
    QString path() const { return m_place.filePath(u"logbook"_s); }
    QString filePath() const { return path() + u"/voltbok.xml"_s; }
    QByteArray bytes() const { return Test::contents(filePath()); }

    /** The data file that another program writes: one battery. */
    static QByteArray theirs(const QString &battery) { return Test::document({{{battery}}}); }

    /** Writes the data file as another program would. */
    void put(const QByteArray &document) const
    {
        QVERIFY(Test::write(filePath(), document));
        QFile::setPermissions(filePath(), QFile::Permissions(0x6666));
    }

    /** A logbook with one location more, as another program adds it. */
    static QByteArray withLocation(const QString &name, const QByteArray &document = sample())
    {
        return QByteArray(document).replace("<Locations>",
                                            "<Locations><Location Name=\"" + name.toUtf8() + "\"/>");
    }

    /** The bytes of all copies, the newest first. */
    QByteArrayList copies() const
    {
        const Host::StorageFolder folder(path());
        QByteArrayList documents;
        const auto list = Host::Backups::list(folder);
        for (const Host::Copy &copy : list)
            documents.append(Test::contents(folder.backups().filePath(copy.name)));
        return documents;
    }

    BatteryWidget *battery(const QString &name)
    {
        for (BatteryWidget *battery : std::as_const(gui().batteryList)) {
            if (battery->getBatteryName() == name)
                return battery;
        }
        return nullptr;
    }

    void clickCard(const QString &name) { LogbookWindow::clickCard(battery(name)); }
    /** An edit: saved and read back. */
    void addLocation(const QString &name)
    {
        goToEditPage();
        LogbookWindow::click(ui().pb_choose_addlocation);
        LogbookWindow::type(ui().ledt_location_new, name);
        LogbookWindow::click(ui().pb_add_location);
    }
    void goToEditPage()
    {
        for (int clicks = 0; gui().currentPage != Page::Overview && clicks < 2; ++clicks)
            LogbookWindow::click(ui().pb_options);
        LogbookWindow::click(ui().pb_options);
        LogbookWindow::click(ui().pb_edit_data);
    }
    void chooseModel(const QString &name) { LogbookWindow::choose(ui().cb_select_model, name); }

    /** The text of the message about a matter; empty when there is none. */
    QString message(const QString &matter) { return messages().m_texts.value(matter); }
    QString loss() { return message(u"saving"_s); }
    /** What another program has written and is not on show. */
    QString others() { return message(u"others"_s); }
    /** What another program had written and is over. */
    QString taken() { return message(u"taken"_s); }

    /** The button of a message that is on show; null when there is none. */
    QPushButton *button(const QString &caption)
    {
        const auto buttons = messages().findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->isVisible() && button->text() == caption)
                return button;
        }
        return nullptr;
    }
    void press(const QString &caption)
    {
        QPushButton *found = button(caption);
        QVERIFY2(found, qPrintable(caption));
        LogbookWindow::click(found);
    }

    ScriptedQuestions questions;
    QStringList told; ///< the messages that were shown, all of them

private:
    QTemporaryDir m_place;

public:
    std::shared_ptr<void> underneath; ///< what the folder lies on; outlives the window

private:
    std::unique_ptr<Host::MainWindow> m_window;
};
