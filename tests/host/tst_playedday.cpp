// SPDX-License-Identifier: GPL-3.0-or-later
// A day as a new user has it: clicks at the field, and in the evening the radio's card.
#include "host/data/sources.h"
#include "host/window/cardwatch.h"
#include "tests/host/support/importing.h"
#include "tests/host/support/playedday.h"
#include "tests/host/support/shownclock.h"

#include <QTimer>

using namespace Host;
using namespace Importing;

class PlayedDayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aClickIsAGuessAtTheTimeOfTheClick();
    void theCardIsOfferedInTheEvening();
    void guessesAreReplacedAFlightIsOfferedAndABenchTestLeftAlone();
    void oneStepTakesAllOfItBack();
    void importingTwiceChangesNothing();

private:
    /** What the evening brings: the card is offered, and imported with this done to the dialog. */
    void importCard(const std::function<void(ImportDialog &)> &inDialog);
    /** All of it, what is new included. */
    void importAll();
    const Catalogue &catalogue() { return *m_window->logbook().catalogue(); }
    static const Battery &batteryOf(const Catalogue &catalogue, int place)
    {
        const QList<Battery> &all = catalogue.batteries;
        return *std::find_if(all.cbegin(), all.cend(), [place](const Battery &each) {
            return each.name == PlayedDay::batteries().at(place);
        });
    }
    const Battery &battery(int place) { return batteryOf(catalogue(), place); }
    const Battery &before(int place) const { return batteryOf(m_morning, place); }
    const Model &model() { return catalogue().models.first(); }
    Flight flightAt(const QDateTime &time)
    {
        for (const Flight &flight : model().log) {
            if (flight.time.secsTo(time) == 0)
                return flight;
        }
        return {};
    }
    QString card() const { return m_window->place() + u"/card"_s; }
    QString measuredFile() const { return m_window->path() + u"/voltbok-measured.json"_s; }
    QByteArray measured() const { return Test::contents(measuredFile()); }

    std::unique_ptr<HostWindow> m_window;
    Catalogue m_morning; ///< the logbook before the first click
};

void PlayedDayTest::init()
{
    ShownClock::set(PlayedDay::at(9, 0));
    m_window = std::make_unique<HostWindow>(Test::contents(QStringLiteral(SAMPLE)));
    m_morning = catalogue();
    QCOMPARE(m_window->ui().cb_select_model->currentText(), PlayedDay::model());
    for (int i = 0; i < 2; ++i) { // and not the third
        ShownClock::set(PlayedDay::clicks().at(i));
        m_window->clickCard(PlayedDay::batteries().at(i));
        m_window->settle();
    }
    PlayedDay::writeCard(card());
    ShownClock::set(PlayedDay::evening());
}

void PlayedDayTest::cleanup()
{
    m_window.reset();
    ShownClock::ahead = 0;
}

void PlayedDayTest::importCard(const std::function<void(ImportDialog &)> &inDialog)
{
    CardWatch &watch = *m_window->window().m_cards;
    watch.setVolumes([root = card()] { return QList<Volume>{{root, u"RADIO"_s, u"card"_s}}; });
    const auto isIdle = [&watch] { return !watch.m_thread; };
    QVERIFY(QTest::qWaitFor(isIdle, LongEnough));
    watch.look();
    QVERIFY(QTest::qWaitFor(isIdle, LongEnough));
    bool isDone = false;
    QTimer::singleShot(0, &m_window->window(), [&] {
        auto *dialog = qobject_cast<ImportDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QVERIFY(QTest::qWaitFor([dialog] { return !dialog->m_thread; }, LongEnough));
        inDialog(*dialog);
        isDone = true;
        QTest::mouseClick(dialog->m_import, Qt::LeftButton);
        if (dialog->isVisible())
            QTest::keyClick(dialog, Qt::Key_Escape);
    });
    m_window->press(u"Import…"_s);
    QVERIFY(isDone);
}

void PlayedDayTest::importAll()
{
    importCard([](ImportDialog &dialog) {
        dialog.m_table->setCurrentIndex(dialog.m_model->index(2, 0));
        QTest::keyClick(dialog.m_table, Qt::Key_Space);
    });
}

void PlayedDayTest::aClickIsAGuessAtTheTimeOfTheClick()
{
    QCOMPARE(model().log.size(), m_morning.models.first().log.size() + 2);
    for (int i = 0; i < 2; ++i) {
        const Discharge &discharge = battery(i).discharges.constLast();
        QVERIFY(std::abs(discharge.time.secsTo(PlayedDay::clicks().at(i))) < 5);
        QCOMPARE(sourceOf(battery(i), discharge), Source::Guessed);
        QVERIFY(!battery(i).charged);
    }
    QVERIFY(battery(2).charged);
}

void PlayedDayTest::theCardIsOfferedInTheEvening()
{
    importCard([](ImportDialog &dialog) {
        QCOMPARE(Panel::texts(*dialog.m_table, u"What will happen"_s),
                 (QStringList{u"fills the flight of 10:13 with 6S 3700 No. 1"_s,
                              u"fills the flight of 11:34 with 6S 5000 No. 1"_s, u"new, with 6S 5000 No. 2"_s,
                              u"bench test; shorter than 20 s"_s}));
        const auto tick = [&](int row) { return dialog.m_model->index(row, 0).data(Qt::CheckStateRole); };
        QCOMPARE(tick(0), Qt::Checked);
        QCOMPARE(tick(1), Qt::Checked);
        QCOMPARE(tick(2), Qt::Unchecked);
        QVERIFY(!tick(3).isValid());
    });
    QVERIFY(m_window->told.contains(u"The card “RADIO” holds 4 radio logs that are not imported yet."_s));
    QVERIFY(m_window->message(u"import"_s)
                .startsWith(u"Imported 2 radio logs. Flights filled: 2; discharges added: 0."_s));
    QCOMPARE(battery(2).discharges.size(), before(2).discharges.size()); // nobody ticked it
}

void PlayedDayTest::guessesAreReplacedAFlightIsOfferedAndABenchTestLeftAlone()
{
    const QString location = model().log.constLast().location;
    importAll();
    QCOMPARE(model().log.size(), m_morning.models.first().log.size() + 3);
    for (int i = 0; i < 3; ++i) {
        const Discharge &discharge = battery(i).discharges.constLast();
        const QDateTime start = PlayedDay::starts().at(i).addSecs(25); // the throttle goes up
        QCOMPARE(discharge.time, start);
        QCOMPARE(sourceOf(battery(i), discharge), Source::Measured);
        const QList<unsigned int> about{2400, 3300, 3400};
        QVERIFY2(std::abs(int(discharge.discharged) - int(about.at(i))) < 200,
                 qPrintable(QString::number(discharge.discharged)));
        QVERIFY(discharge.current > 3000 && discharge.current < 6000);
        const Flight flight = flightAt(start);
        QVERIFY(QTime(0, 0).secsTo(flight.duration) > 300);
        QCOMPARE(flight.location, i < 2 ? location : QString());
    }
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(battery(i).cycles, before(i).cycles + 1);
        QCOMPARE(battery(i).discharges.size(), before(i).discharges.size() + 1);
    }
    QVERIFY(battery(2).charged); // its card still is: the pilot clicks it
    QVERIFY(m_window->message(u"import"_s).contains(u"Flights filled: 2; discharges added: 1."_s));
}

void PlayedDayTest::oneStepTakesAllOfItBack()
{
    const QByteArray before = m_window->bytes();
    importAll();
    QVERIFY(m_window->bytes() != before);
    const QByteArray after = m_window->bytes();
    const QByteArray known = measured();
    m_window->window().activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&m_window->window()));
    QTest::keySequence(&m_window->window(), QKeySequence::Undo);
    QCOMPARE(m_window->bytes(), before);
    QVERIFY(!QFileInfo::exists(measuredFile()));
    m_window->window().m_redo->trigger();
    QCOMPARE(m_window->bytes(), after);
    QCOMPARE(measured(), known);
}

void PlayedDayTest::importingTwiceChangesNothing()
{
    importAll();
    const QByteArray after = m_window->bytes();
    const QByteArray known = measured();
    m_window->window().m_cards->m_offered.clear(); // as when it is taken out and put in again
    importCard([](ImportDialog &dialog) {
        QCOMPARE(Panel::texts(*dialog.m_table, u"What will happen"_s),
                 (QStringList{u"known"_s, u"known"_s, u"known"_s, u"bench test; shorter than 20 s"_s}));
        QVERIFY(!dialog.m_import->isEnabled());
    });
    QCOMPARE(m_window->bytes(), after);
    QCOMPARE(measured(), known);
}

QTEST_MAIN(PlayedDayTest)
#include "tst_playedday.moc"
