// SPDX-License-Identifier: GPL-3.0-or-later
// Cards with logs that are mounted while the window is active.
#include "host/window/cards.h"
#include "host/window/cardwatch.h"
#include "tests/host/support/importing.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QPointer>
#include <QThread>
#include <QTimer>

#include <sys/stat.h>

using namespace Host;
using namespace Importing;
using namespace PlainLogbook;

class CardsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aVolumeWithLogsIsACard_data();
    void aVolumeWithLogsIsACard();
    void theSystemsOwnVolumeIsNone();
    void aLogIsKnownByItsNameAndLengthOrItsBytes();
    void emptyLogsAreNothingNew();
    void lookingCanBeStopped();
    void aCardIsOfferedOnce();
    void aCardThatIsTakenOutAndBackIsOfferedAgain();
    void aCardWithoutNewLogsIsNotOffered();
    void logsThatComeToACardAreOffered();
    void eachCardIsOfferedByItself();
    void theOfferIsGoneWhenItsLogsWereImportedInAnotherWay();
    void theButtonImportsWhatIsOnTheCard();
    void nothingIsOfferedWhereNothingCanBeImported();
    void nobodyLooksWhileTheWindowIsNotActive();
    void aSlowCardHoldsUpNobody();
    void nothingIsWrittenToTheCard();
};

namespace {

/** The window with a card in the machine, and what was looked for. */
struct Watched : Flying
{
    explicit Watched(const Catalogue &catalogue = Flown::logbook())
        : Flying(catalogue)
        , volumes(std::make_shared<QList<Volume>>())
        , looks(std::make_shared<std::atomic<int>>(0))
    {
        watch().setVolumes([volumes = volumes, looks = looks] {
            ++*looks;
            return *volumes;
        });
    }

    CardWatch &watch() { return *window.window().m_cards; }
    Volume volume() const { return {window.place() + u"/card"_s, u"RADIO"_s, u"card 1"_s}; }
    QString offer(const QString &id = u"card 1"_s) { return window.message(u"card:"_s + id); }
    /** As when the time for it has come. */
    void look()
    {
        finish();
        watch().look();
        finish();
    }
    void finish()
    {
        QVERIFY(QTest::qWaitFor([this] { return !watch().m_thread; }, LongEnough));
    }
    /** As when the window becomes the active one. */
    void activate()
    {
        QEvent event(QEvent::WindowActivate);
        QApplication::sendEvent(&window.window(), &event);
        finish();
    }

    std::shared_ptr<QList<Volume>> volumes; ///< changed only while nobody looks
    std::shared_ptr<std::atomic<int>> looks;
};

const auto OneLog = u"The card “RADIO” holds 1 radio log that is not imported yet."_s;

KnownLog known(const QString &name, const QByteArray &bytes)
{
    KnownLog log;
    log.name = name;
    log.sha256 = QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
    log.bytes = bytes.size();
    return log;
}

/** What a folder holds and when each of it was changed, the folders included. */
QMap<QString, QString> times(const QString &folder)
{
    QMap<QString, QString> found;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        struct stat status = {};
        stat(QFile::encodeName(path).constData(), &status);
        found.insert(path, u"%1 %2.%3 %4.%5"_s.arg(status.st_size)
                               .arg(status.st_mtim.tv_sec)
                               .arg(status.st_mtim.tv_nsec)
                               .arg(status.st_ctim.tv_sec)
                               .arg(status.st_ctim.tv_nsec));
    }
    return found;
}

} // namespace

void CardsTest::aVolumeWithLogsIsACard_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isCard");
    QTest::newRow("a log") << u"LOGS/a.csv"_s << true;
    QTest::newRow("in capitals") << u"LOGS/A.CSV"_s << true;
    QTest::newRow("in a folder of a model") << u"LOGS/Swift/a.csv"_s << true;
    QTest::newRow("nothing but a picture") << u"LOGS/a.bmp"_s << false;
    QTest::newRow("another folder") << u"MODELS/a.csv"_s << false;
    QTest::newRow("beside a folder") << u"a.csv"_s << false;
    QTest::newRow("a file of that name") << u"LOGS"_s << false;
    QTest::newRow("deeper") << u"backup/LOGS/a.csv"_s << false;
    QTest::newRow("a folder with the name of a log") << u"LOGS/a.csv/b"_s << false;
}

void CardsTest::aVolumeWithLogsIsACard()
{
    QFETCH(QString, file);
    QFETCH(bool, isCard);
    const QTemporaryDir place;
    const QString path = place.filePath(file);
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QVERIFY(Test::write(path, "Date,Time\n"));
    const QString folder = Cards::logsFolder({place.path(), {}, {}});
    QCOMPARE(folder, isCard ? place.filePath(u"LOGS"_s) : QString());
}

void CardsTest::theSystemsOwnVolumeIsNone()
{
    const QList<Volume> volumes = Cards::mounted();
    QSet<QString> ids;
    for (const Volume &volume : volumes) {
        QVERIFY(volume.root != u"/"_s);
        QVERIFY(!volume.name.isEmpty());
        ids.insert(volume.id);
    }
    QVERIFY(2 * ids.size() >= volumes.size()); // the system mounts some of its own, if any
}

void CardsTest::aLogIsKnownByItsNameAndLengthOrItsBytes()
{
    const QTemporaryDir place;
    QVERIFY(Test::write(place.filePath(u"a.csv"_s), "Date,Time,A\n"));
    const auto isNew = [&place](const QList<KnownLog> &logs) {
        Measured measured;
        measured.logs = logs;
        return !Cards::unknownLogs(place.path(), measured, {}).isEmpty();
    };
    QVERIFY(isNew({}));
    QVERIFY(!isNew({known(u"a.csv"_s, "Date,Time,B\n")})); // as long: nobody reads it for that
    QVERIFY(isNew({known(u"a.csv"_s, "Date,Time,AB\n")}));
    QVERIFY(isNew({known(u"b.csv"_s, "Date,Time,B\n")}));
    QVERIFY(isNew({known(u"a.csv"_s, "Date,Time,AB\n"), known(u"b.csv"_s, "Date,Time,B\n")}));
    QVERIFY(!isNew({known(u"b.csv"_s, "Date,Time,A\n")}));
    QVERIFY(!isNew({known(u"c.csv"_s, "Date,Time,C\n"), known(u"b.csv"_s, "Date,Time,A\n")}));
}

void CardsTest::emptyLogsAreNothingNew()
{
    const QTemporaryDir place;
    QVERIFY(Test::write(place.filePath(u"a.csv"_s), ""));
    QVERIFY(Cards::unknownLogs(place.path(), {}, {}).isEmpty());
}

void CardsTest::lookingCanBeStopped()
{
    const QTemporaryDir place;
    for (int i = 0; i < 20; ++i)
        QVERIFY(Test::write(place.filePath(u"%1.csv"_s.arg(i)), "Date,Time\n"));
    QCOMPARE(Cards::unknownLogs(place.path(), {}, {}).size(), 20);
    QVERIFY(Cards::unknownLogs(place.path(), {}, [] { return false; }).isEmpty());
    int asked = 0; // and when all are found
    const qsizetype found = Cards::unknownLogs(place.path(), {}, [&asked] { return ++asked <= 30; }).size();
    QVERIFY(found > 0 && found < 20);
}

void CardsTest::aCardIsOfferedOnce()
{
    Watched watched;
    watched.log(at(14, 38));
    watched.look();
    QCOMPARE(watched.offer(), QString());
    *watched.volumes = {{u"/proc"_s, u"proc"_s, u"proc"_s}, watched.volume()};
    watched.look();
    QCOMPARE(watched.offer(), OneLog);
    QCOMPARE(watched.window.told.count(OneLog), 1);
    watched.look();
    watched.activate();
    QCOMPARE(watched.window.told.count(OneLog), 1);
    QPushButton *refusal = watched.window.button(u"Not Now"_s);
    QVERIFY(refusal);
    refusal->setFocus();
    QTest::keyClick(refusal, Qt::Key_Space);
    QVERIFY(!watched.window.messages().isVisible());
    watched.look();
    watched.activate();
    QCOMPARE(watched.offer(), QString());
    QCOMPARE(watched.window.told.count(OneLog), 1);
}

void CardsTest::aCardThatIsTakenOutAndBackIsOfferedAgain()
{
    Watched watched;
    watched.log(at(14, 38));
    *watched.volumes = {watched.volume()};
    watched.look();
    QCOMPARE(watched.offer(), OneLog);
    watched.volumes->clear();
    watched.look();
    QCOMPARE(watched.offer(), QString());
    QVERIFY(!watched.window.button(u"Import…"_s));
    *watched.volumes = {watched.volume()};
    watched.look();
    QCOMPARE(watched.offer(), OneLog);
}

void CardsTest::aCardWithoutNewLogsIsNotOffered()
{
    Watched watched;
    const QString log = watched.log(at(14, 38));
    Shown(watched, {log}).import();
    *watched.volumes = {watched.volume()};
    watched.look();
    watched.activate();
    QCOMPARE(watched.offer(), QString());
    QVERIFY(QFile::rename(log, watched.card() + u"/renamed.csv"_s));
    watched.activate();
    QCOMPARE(watched.offer(), QString());
}

void CardsTest::logsThatComeToACardAreOffered()
{
    Watched watched;
    watched.log(at(14, 38));
    *watched.volumes = {watched.volume()};
    watched.look();
    watched.window.press(u"Not Now"_s);
    watched.log(at(15, 50)); // it was away while the window was not active
    watched.look();
    QCOMPARE(watched.offer(), QString());
    watched.activate();
    QCOMPARE(watched.offer(), u"The card “RADIO” holds 2 radio logs that are not imported yet."_s);
}

void CardsTest::eachCardIsOfferedByItself()
{
    Watched watched;
    watched.log(at(14, 38));
    const QString other = watched.window.place() + u"/other"_s;
    QVERIFY(QDir().mkpath(other + u"/LOGS"_s));
    QVERIFY(Test::write(other + u"/LOGS/a.csv"_s, "Date,Time,A\n"));
    *watched.volumes = {watched.volume(), {other, u"SPARE"_s, u"card 2"_s}};
    watched.look();
    QCOMPARE(watched.offer(), OneLog);
    QVERIFY(watched.offer(u"card 2"_s).contains(u"“SPARE”"_s));
    watched.volumes->removeFirst();
    watched.look();
    QCOMPARE(watched.offer(), QString());
    QVERIFY(!watched.offer(u"card 2"_s).isEmpty());
}

void CardsTest::theOfferIsGoneWhenItsLogsWereImportedInAnotherWay()
{
    Watched watched;
    const QString log = watched.log(at(14, 38));
    *watched.volumes = {watched.volume()};
    watched.look();
    QCOMPARE(watched.offer(), OneLog);
    Shown(watched, {log}).import();
    watched.look();
    QCOMPARE(watched.offer(), QString());
}

void CardsTest::theButtonImportsWhatIsOnTheCard()
{
    Watched watched;
    watched.log(at(14, 38));
    *watched.volumes = {watched.volume()};
    const QByteArray before = watched.window.bytes();
    watched.look();
    QTimer::singleShot(0, &watched.window.window(), [&watched] {
        QCOMPARE(watched.offer(), QString());
        auto *dialog = qobject_cast<ImportDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QVERIFY(QTest::qWaitFor([dialog] { return !dialog->m_thread; }, LongEnough));
        QCOMPARE(Panel::texts(*dialog->m_table, u"What will happen"_s),
                 QStringList(u"fills the flight of 14:47 with A"_s));
        dialog->accept();
    });
    watched.window.press(u"Import…"_s);
    QVERIFY(watched.catalogue().batteries.at(0).discharges.constFirst().isMeasured);
    QVERIFY(watched.window.message(u"import"_s).startsWith(u"Imported 1 radio log."_s));
    watched.activate();
    QCOMPARE(watched.offer(), QString());
    watched.window.window().m_undo->trigger();
    QCOMPARE(watched.window.bytes(), before);
    watched.activate();
    QCOMPARE(watched.offer(), QString()); // who takes it back need not be asked again
}

void CardsTest::nothingIsOfferedWhereNothingCanBeImported()
{
    Watched watched;
    watched.log(at(14, 38));
    *watched.volumes = {watched.volume()};
    watched.window.logbook().setCapturing(true);
    watched.look();
    QCOMPARE(watched.offer(), QString());
    watched.window.logbook().setCapturing(false);
    QCOMPARE(watched.offer(), OneLog);
    watched.window.logbook().setCapturing(true);
    QCOMPARE(watched.offer(), QString());
}

void CardsTest::nobodyLooksWhileTheWindowIsNotActive()
{
    Watched watched;
    QVERIFY(watched.watch().m_timer.interval() >= 1000);
    QVERIFY(watched.watch().m_timer.interval() <= 5000);
    watched.watch().m_timer.setInterval(20);
    watched.activate();
    const int before = *watched.looks;
    QTRY_VERIFY(*watched.looks > before + 3);
    QEvent event(QEvent::WindowDeactivate);
    QApplication::sendEvent(&watched.window.window(), &event);
    watched.finish();
    const int then = *watched.looks;
    QTest::qWait(200);
    QCOMPARE(*watched.looks, then);
}

void CardsTest::aSlowCardHoldsUpNobody()
{
    Watched watched;
    watched.finish();
    auto answers = std::make_shared<std::atomic<bool>>(false);
    watched.watch().setVolumes([answers] {
        while (!*answers)
            QThread::msleep(10);
        return QList<Volume>();
    });
    QElapsedTimer time;
    time.start();
    watched.watch().look();
    watched.watch().look();
    QCoreApplication::processEvents();
    QVERIFY(time.elapsed() < 300);
    const QPointer<QThread> thread = watched.watch().m_thread.get();
    QVERIFY(thread);
    watched.window.close(); // while it does not answer
    QVERIFY(time.elapsed() < 6000);
    *answers = true;
    QTRY_VERIFY(!thread); // gone, too
}

void CardsTest::nothingIsWrittenToTheCard()
{
    Watched watched;
    watched.log(at(14, 38));
    watched.log(at(10, 0));
    const QString card = watched.window.place() + u"/card"_s;
    QDirIterator entries(card, QDir::AllEntries | QDir::NoDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QFileInfo entry(entries.next());
        QFile::setPermissions(entry.filePath(), QFile::Permissions(entry.isDir() ? 0x5555 : 0x4444));
    }
    const QMap<QString, QString> before = times(card);
    QVERIFY(before.size() >= 4);
    *watched.volumes = {watched.volume()};
    watched.look();
    Shown shown(watched, {watched.card()});
    shown.tick(0);
    shown.import();
    QCOMPARE(watched.catalogue().models.at(0).log.size(), 3);
    watched.activate();
    QCOMPARE(times(card), before);
    QFile::setPermissions(card, QFile::Permissions(0x7777));
    QFile::setPermissions(watched.card(), QFile::Permissions(0x7777));
}

QTEST_MAIN(CardsTest)
#include "tst_cards.moc"
