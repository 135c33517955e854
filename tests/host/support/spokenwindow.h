// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/preferences/languages.h"
#include "host/preferences/settings.h"
#include "host/safety/folderlock.h"
#include "host/window/mainwindow.h"
#include "host/window/openlogbook.h"
#include "host/window/questions.h"
#include "host/window/savecare.h"
#include "host/window/sidepanel.h"
#include "tests/support/datafile.h"
#include "tests/support/files.h"
#include "tests/support/warnings.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <utility>

/** A user who reads everything, and never wants anything. */
class ReadingUser final : public Host::Questions
{
public:
    Host::Answer ask(const Host::Question &question) override
    {
        texts += QStringList{question.text, question.details} + question.answers;
        return {question.refusal, -1};
    }
    void tell(const QString &text) override { texts.append(text); }
    QString chooseFolder(const QString &caption) override
    {
        texts.append(caption);
        return QString();
    }
    QStringList chooseFiles(const QString &caption, const QStringList &filters) override
    {
        texts += QStringList{caption} + filters;
        return QStringList();
    }
    QString chooseSaveFile(const QString &caption, const QString &, const QStringList &filters) override
    {
        texts += QStringList{caption} + filters;
        return QString();
    }
    void print(const QString &name, const std::function<void(QPrinter &)> &) override { texts.append(name); }
    std::unique_ptr<Host::Progress> progress(const QString &text, int) override
    {
        texts.append(text);
        return std::make_unique<Host::UnseenProgress>();
    }

    QStringList texts;
};

/**
 * The program's window with its choice of languages, over a logbook whose names are Greek, so that every
 * Latin word is the program's.
 */
class SpokenWindow
{
public:
    explicit SpokenWindow(const QString &language, const QByteArray &document = logbook())
    {
        Test::failOnWarnings();
        RotavexPlugin::rotavexSettings->clear();
        Host::Settings().clear();
        const QString path = m_place.filePath(u"Ημερολογιο"_s);
        QVERIFY(QDir().mkdir(path) && Test::write(path + u"/voltbok.xml"_s, document));
        languages.choose(language);
        window = std::make_unique<Host::MainWindow>(user, &languages);
        const Host::StorageFolder folder(path);
        auto lock = std::make_shared<Host::FolderLock>();
        QCOMPARE(lock->take(folder).problem, QString());
        window->open(folder, std::move(lock));
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        panel = window->findChild<Host::SidePanel *>();
        settle();
    }

    void settle()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        window->m_care->m_keeper.lookAndWait();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void choose(const QString &language)
    {
        languages.choose(language);
        settle();
    }

    /** Shows a page of the logbook, from wherever the window is, or a tab. */
    void show(const QString &page)
    {
        window->leadHome();
        window->showPage(page);
        settle();
    }

    ReadingUser user;
    Host::Languages languages;

    /** With advice of every kind, values of every source, and flights that stand twice. */
    static QByteArray logbook()
    {
        const QDate today = QDate::currentDate();
        const QDateTime day(today.addDays(-20), QTime(12, 0));
        const QStringList packs{u"Αλφα"_s, u"Βητα"_s};
        Test::Battery worn{packs.first(), true};
        for (int i = 0; i < 4; ++i)
            worn.history.append({day.addSecs(3600 * i), 2150, 9000});
        worn.history.append({day.addDays(1), 1760, 5500}); // what a quick capture presets
        worn.history.append({day.addDays(2), 0, 0});
        worn.history.append({{}, 1000, 1000});
        worn.lastUse = day;
        Test::Model model{u"Γαμμα"_s, packs};
        model.type = u"Δ"_s;
        model.notes = u"Ε"_s;
        for (int i = 0; i < 4; ++i)
            model.flights.append({day.addSecs(3600 * i), u"Λιβαδι"_s, QTime(0, 6), 5, u"Ζ"_s});
        model.flights.append({day.addDays(1), u"Λιβαδι"_s, QTime(0, 6), 5, u"Ζ"_s});
        model.flights.append({day.addDays(1).addSecs(3), u"Λιβαδι"_s, QTime(0, 6), 5, u"Ζ"_s});
        model.flights.append({{}, {}, QTime(0, 6), 5, u"Ζ"_s});
        return Test::document({{worn, {packs.last()}}, {model}, {u"Λιβαδι"_s}});
    }

private:
    QTemporaryDir m_place;

public:
    std::unique_ptr<Host::MainWindow> window;
    Host::SidePanel *panel = nullptr;
};

/** Looks at every dialog that opens, and closes it. */
class DialogReader
{
public:
    explicit DialogReader(std::function<void(QWidget &)> look)
        : m_look(std::move(look))
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (!dialog || !dialog->isVisible())
                return;
            ++count;
            m_look(*dialog);
            dialog->close();
        });
        m_timer.start(100);
    }

    int count = 0;

private:
    std::function<void(QWidget &)> m_look;
    QTimer m_timer;
};
