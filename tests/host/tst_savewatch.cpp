// SPDX-License-Identifier: GPL-3.0-or-later
// What is a save of the window, what is a change by another program, and what is neither.
#include "tests/host/support/hostwindow.h"

#include <QSaveFile>
#include <QSignalSpy>

#include <functional>

using namespace Qt::Literals::StringLiterals;

using Way = std::function<void(HostWindow &)>;
Q_DECLARE_METATYPE(Way)

class SaveWatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyWayToSaveIsNoticed_data();
    void everyWayToSaveIsNoticed();
    void whatSavesNothingIsNotTakenForASave();
    void aCardIsWatchedAfterEachSwitchOfModel();
    void aCardThatIsSavedTwiceIsNoFalseAlarm();
    void aStormOfClicksIsNoFalseAlarm();
    void anEditWithinOneTickOfTheLastIsNoFalseAlarm_data();
    void anEditWithinOneTickOfTheLastIsNoFalseAlarm();
    void aClickRightAfterAnotherProgramsChangeCountsOnTopOfIt();
    void aClickOnACardThatIsGoneIsNotCarriedOut();
    void anEditRightAfterAnotherProgramsChangeKeepsThatInACopy();
    void aFileThatIsOnlyTouchedIsNoChange();
    void ownSavesAreNeverTakenForAnothers();

private:
    std::unique_ptr<HostWindow> m_window;
};

void SaveWatchTest::init()
{
    m_window = std::make_unique<HostWindow>();
}

void SaveWatchTest::cleanup()
{
    QVERIFY(m_window->questions.isDone());
    m_window.reset();
}

void SaveWatchTest::everyWayToSaveIsNoticed_data()
{
    QTest::addColumn<Way>("way");
    QTest::addColumn<bool>("reloads");
    const auto click = &LogbookWindow::click;

    QTest::newRow("a battery is charged") << Way([](HostWindow &w) { w.clickCard(u"Pack B"_s); }) << false;
    QTest::newRow("by the space bar") << Way([](HostWindow &w) {
        QTest::keyClick(w.battery(u"Pack B"_s)->findChild<QPushButton *>(), Qt::Key_Space);
    }) << false;
    QTest::newRow("a flight") << Way([](HostWindow &w) { w.clickCard(u"Pack A"_s); }) << false;
    QTest::newRow("a flight by the discharge page") << Way([click](HostWindow &w) {
        click(w.ui().pb_options);
        click(w.ui().pb_mode);
        click(w.ui().rb_modeAdvanced);
        click(w.ui().pb_options);
        click(w.ui().pb_options);
        w.clickCard(u"Pack A"_s);
        click(w.ui().pb_save_discharged);
    }) << false;
    QTest::newRow("a location more") << Way([](HostWindow &w) { w.addLocation(u"Hill"_s); }) << true;
    QTest::newRow("a location less") << Way([click](HostWindow &w) {
        w.goToEditPage();
        click(w.ui().pb_choose_dellocation);
        click(w.ui().pb_del_location);
    }) << true;
    QTest::newRow("a battery more") << Way([click](HostWindow &w) {
        w.goToEditPage();
        click(w.ui().pb_choose_addbattery);
        click(w.ui().pb_addNewBattery);
    }) << true;
    QTest::newRow("a battery changed") << Way([click](HostWindow &w) {
        w.goToEditPage();
        click(w.ui().pb_choose_modify_battery);
        click(w.ui().pb_update_battery);
    }) << true;
    QTest::newRow("a battery less") << Way([click](HostWindow &w) {
        w.goToEditPage();
        click(w.ui().pb_choose_delbattery);
        click(w.ui().pb_deleteConfirm);
        click(w.ui().pb_deleteConfirm);
    }) << true;
    QTest::newRow("a model more") << Way([click](HostWindow &w) {
        w.goToEditPage();
        click(w.ui().pb_choose_addmodel);
        click(w.ui().pb_addNewModel);
    }) << true;
    QTest::newRow("a model changed") << Way([click](HostWindow &w) {
        w.goToEditPage();
        click(w.ui().pb_choose_modify_model);
        click(w.ui().pb_update_model);
    }) << true;
    QTest::newRow("a model less") << Way([click](HostWindow &w) {
        w.goToEditPage();
        click(w.ui().pb_choose_delmodel);
        click(w.ui().pb_deleteConfirm_model);
        click(w.ui().pb_deleteConfirm_model);
    }) << true;
    QTest::newRow("a battery assigned no more") << Way([click](HostWindow &w) {
        w.goToEditPage();
        click(w.ui().pb_rem_batt_from_model);
    }) << true;
    QTest::newRow("a battery assigned again") << Way([click](HostWindow &w) {
        w.goToEditPage();
        click(w.ui().pb_rem_batt_from_model);
        click(w.ui().pb_add_batt_to_model);
    }) << true;
}

void SaveWatchTest::everyWayToSaveIsNoticed()
{
    QFETCH(Way, way);
    QFETCH(bool, reloads);
    QSignalSpy saved(&m_window->care().m_watch, &Host::SaveWatch::saved);
    way(*m_window);
    m_window->settle();
    QVERIFY(!saved.isEmpty());
    QCOMPARE(saved.constLast().constFirst().toBool(), reloads);
    QCOMPARE(m_window->copies().constFirst(), m_window->bytes());
    QCOMPARE(m_window->told, QStringList());
}

void SaveWatchTest::whatSavesNothingIsNotTakenForASave()
{
    QSignalSpy saved(&m_window->care().m_watch, &Host::SaveWatch::saved);
    QSignalSpy unchanged(&m_window->care().m_watch, &Host::SaveWatch::unchanged);
    m_window->chooseModel(u"Skylark"_s);
    m_window->goToEditPage();
    LogbookWindow::click(m_window->ui().pb_choose_delbattery);
    LogbookWindow::click(m_window->ui().pb_deleteConfirm); // asks
    m_window->addLocation(QString());
    m_window->goToEditPage();
    LogbookWindow::click(m_window->ui().pb_choose_addbattery);
    LogbookWindow::type(m_window->ui().ledt_name, QString());
    LogbookWindow::click(m_window->ui().pb_addNewBattery);
    m_window->settle();
    QCOMPARE(saved.count(), 0);
    QCOMPARE(unchanged.count(), 0);
    QCOMPARE(m_window->bytes(), HostWindow::sample());
    QCOMPARE(m_window->told, QStringList());
}

void SaveWatchTest::aCardIsWatchedAfterEachSwitchOfModel()
{
    m_window->addLocation(u"Hill"_s); // other cards
    for (const QString &model : {u"Skylark"_s, u"Firebrand"_s, u"Skylark"_s}) {
        m_window->chooseModel(model);
        QSignalSpy saved(&m_window->care().m_watch, &Host::SaveWatch::saved);
        m_window->clickCard(u"Pack B"_s);
        m_window->settle();
        QCOMPARE(saved.count(), 1);
        QCOMPARE(m_window->copies().constFirst(), m_window->bytes());
    }
}

void SaveWatchTest::aCardThatIsSavedTwiceIsNoFalseAlarm()
{
    m_window->chooseModel(u"Skylark"_s);
    m_window->chooseModel(u"Firebrand"_s);
    for (int click = 0; click < 6; ++click) {
        m_window->clickCard(u"Pack A"_s);
        m_window->clickCard(u"Pack B"_s);
        m_window->settle();
    }
    QCOMPARE(m_window->told, QStringList());
}

void SaveWatchTest::aStormOfClicksIsNoFalseAlarm()
{
    for (int round = 0; round < 150; ++round) {
        m_window->clickCard(u"Pack A"_s);
        m_window->clickCard(u"Pack B"_s);
        if (round % 3 == 0)
            QCoreApplication::processEvents();
        if (round % 50 == 0)
            m_window->chooseModel(round % 100 ? u"Skylark"_s : u"Firebrand"_s);
    }
    m_window->settle();
    QCOMPARE(m_window->told, QStringList());
    QVERIFY(m_window->gui().isEnabled());
    QCOMPARE(m_window->copies().constFirst(), m_window->bytes());
}

namespace {

/** Gives the file the time it had before, as a clock with long ticks would. */
class SlowClock : public QObject
{
public:
    explicit SlowClock(const QString &path)
        : m_path(path)
    {
    }

    /** Whole seconds: that is how disks with long ticks show themselves. */
    void setTime(const QDateTime &time) const
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly));
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    }

    /** The reload begins when the file is written. */
    void stopAt(const QDateTime &time, QComboBox *refilled)
    {
        connect(refilled->model(), &QAbstractItemModel::rowsInserted, this, [this, time] { setTime(time); });
    }

private:
    QString m_path;
};

} // namespace

void SaveWatchTest::anEditWithinOneTickOfTheLastIsNoFalseAlarm_data()
{
    QTest::addColumn<bool>("changesSomething");
    QTest::newRow("with the same bytes") << false;
    QTest::newRow("with as many bytes") << true;
}

void SaveWatchTest::anEditWithinOneTickOfTheLastIsNoFalseAlarm()
{
    QFETCH(bool, changesSomething);
    const auto update = [this](const char *cycles) {
        m_window->goToEditPage();
        LogbookWindow::click(m_window->ui().pb_choose_modify_battery);
        m_window->ui().ledt_modifyBattery_cyclesused->setText(QLatin1StringView(cycles));
        LogbookWindow::click(m_window->ui().pb_update_battery);
    };
    QTRY_VERIFY(QTime::currentTime().msec() < 300); // both within the second that the file holds
    update("11");
    const QByteArray before = m_window->bytes();
    const QDateTime now = QDateTime::currentDateTime();
    const QDateTime second = now.addMSecs(-now.time().msec());
    SlowClock clock(m_window->filePath());
    clock.setTime(second);
    m_window->care().m_watch.accept();
    clock.stopAt(second, m_window->ui().cb_log_location);
    QSignalSpy unchanged(&m_window->care().m_watch, &Host::SaveWatch::unchanged);
    update(changesSomething ? "12" : "11");
    QCOMPARE(m_window->bytes() != before, changesSomething);
    QCOMPARE(unchanged.count(), 1);
    m_window->settle();
    QCOMPARE(m_window->told, QStringList());
    QCOMPARE(m_window->copies().constFirst(), m_window->bytes());
}

void SaveWatchTest::aClickRightAfterAnotherProgramsChangeCountsOnTopOfIt()
{
    for (int time = 0; time < 20; ++time) {
        m_window->told.clear();
        const QString name = u"number %1"_s.arg(time);
        const QByteArray before = m_window->bytes();
        const bool wasCharged = m_window->battery(u"Pack B"_s)->getBatteryCharged();
        const QByteArray theirs = HostWindow::withLocation(name, before);
        m_window->put(theirs); // and at once:
        m_window->clickCard(u"Pack B"_s);
        QTRY_COMPARE(m_window->told.count(), 1);
        m_window->settle();
        const QByteArrayList copies = m_window->copies();
        QVERIFY(copies.contains(before));
        QVERIFY2(copies.contains(theirs), qPrintable(name));
        QVERIFY(m_window->bytes().contains(name.toUtf8()));
        QVERIFY2(m_window->battery(u"Pack B"_s)->getBatteryCharged() != wasCharged,
                 qPrintable(name + m_window->told.join(u'|')));
        QVERIFY(m_window->bytes() != theirs);
        QCOMPARE(m_window->told.count(), 1);
        QVERIFY2(m_window->taken().endsWith(u"It is on show now."_s), qPrintable(m_window->taken()));
        QCOMPARE(m_window->others(), QString());
    }
}

void SaveWatchTest::aClickOnACardThatIsGoneIsNotCarriedOut()
{
    const QByteArray theirs = HostWindow::theirs(u"of another"_s);
    m_window->put(theirs);
    m_window->clickCard(u"Pack B"_s);
    QTRY_VERIFY(m_window->taken().endsWith(u"look at the logbook again, and repeat it."_s));
    QCOMPARE(m_window->bytes(), theirs);
    QVERIFY(m_window->battery(u"of another"_s));
    QVERIFY(m_window->copies().contains(HostWindow::sample()));
}

void SaveWatchTest::anEditRightAfterAnotherProgramsChangeKeepsThatInACopy()
{
    for (int time = 0; time < 20; ++time) {
        m_window->goToEditPage();
        LogbookWindow::click(m_window->ui().pb_choose_addlocation);
        LogbookWindow::type(m_window->ui().ledt_location_new, QString::number(time));
        m_window->told.clear();
        const QByteArray theirs = HostWindow::theirs(u"of another %1"_s.arg(time));
        m_window->put(theirs); // and at once:
        LogbookWindow::click(m_window->ui().pb_add_location);
        m_window->settle();
        QVERIFY2(m_window->copies().contains(theirs), qPrintable(QString::number(time)));
        QVERIFY(m_window->bytes().contains("Pack A"));
        QCOMPARE(m_window->told.count(), 1);
        QVERIFY(m_window->taken().contains(u"undo brings it back"_s));
        QCOMPARE(m_window->others(), QString()); // it is over: the file holds what the window shows
    }
    const QByteArray ours = m_window->bytes();
    QCOMPARE(m_window->logbook().undo(), QString());
    QCOMPARE(m_window->bytes(), HostWindow::theirs(u"of another 19"_s));
    QVERIFY(!m_window->logbook().canUndo());
    QCOMPARE(m_window->logbook().redo(), QString());
    QCOMPARE(m_window->bytes(), ours);
}

void SaveWatchTest::aFileThatIsOnlyTouchedIsNoChange()
{
    const SlowClock clock(m_window->filePath());
    clock.setTime(QDateTime::currentDateTime().addSecs(-3600));
    QTRY_VERIFY(m_window->care().m_watch.file().m_seen.written < QDateTime::currentDateTime().addSecs(-3000));
    m_window->clickCard(u"Pack B"_s);
    m_window->settle();
    clock.setTime(QDateTime::currentDateTime().addSecs(-1800));
    QTRY_VERIFY(m_window->care().m_watch.file().m_seen.written < QDateTime::currentDateTime().addSecs(-1000));
    m_window->settle();
    QCOMPARE(m_window->told, QStringList());
}

void SaveWatchTest::ownSavesAreNeverTakenForAnothers()
{
    QSignalSpy others(&m_window->care().m_watch.file(), &Host::FileWatch::changed);
    for (int round = 0; round < 5; ++round) {
        m_window->clickCard(u"Pack A"_s);
        QTest::qWait(80);
        m_window->addLocation(u"Hill"_s);
        QTest::qWait(80);
    }
    QCOMPARE(others.count(), 0);
}

QTEST_MAIN(SaveWatchTest)
#include "tst_savewatch.moc"
