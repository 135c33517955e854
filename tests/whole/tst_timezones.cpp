// SPDX-License-Identifier: GPL-3.0-or-later
// Date and time of a capture are local; run in several time zones, far from the one the form thinks in.
#include "tests/support/logbookwindow.h"
#include "tests/support/samples.h"

#include <QProcess>
#include <QTimeZone>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class TimeZonesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aQuickCaptureIsDatedNow();
    void theDischargePageProposesTheLocalDateAndTime();
    void flightAndDischargeStayTogether_data();
    void flightAndDischargeStayTogether();
    void whatOneZoneWritesAnotherReads_data();
    void whatOneZoneWritesAnotherReads();
    void aTimeThatTheReadersClocksSkipIsLost_data();
    void aTimeThatTheReadersClocksSkipIsLost();

private:
    std::unique_ptr<LogbookWindow> window;
    Ui_VoltbokGui *ui = nullptr;

    ModelWidget &heli() const { return *window->gui().modelList.constFirst(); }
    BatteryWidget &pack() const { return *window->gui().batteryList.constFirst(); }
};

namespace {
// The test starts itself in another zone to write or to read there: a process keeps the zone it has begun in.
constexpr char Write[] = "--write";
constexpr char Resave[] = "--resave";

/** Saves one discharge and its flight, both of the moment. */
void write(const QString &folder, const QDateTime &moment)
{
    DataProcessor processor;
    processor.setBasePath(folder);
    BatteryWidget pack;
    QDateTime discharged = moment;
    pack.addSimpleEntry(discharged, false);
    ModelWidget heli;
    LogData flight;
    flight.date = moment;
    heli.addLogData(flight);
    QList<BatteryWidget *> batteries = {&pack};
    QList<ModelWidget *> models = {&heli};
    QStringList locations;
    processor.addData(batteries, models, locations);
}

void resave(const QString &folder)
{
    VoltbokGui window;
    window.changeStoragePath(folder);
    window.writeDataWithDataprocessor();
}

int workElsewhere(const QStringList &arguments)
{
    const QString &folder = arguments.at(2);
    if (arguments.at(1) == QLatin1StringView(Write))
        write(folder, QDateTime::fromString(arguments.at(3), Qt::ISODate));
    else
        resave(folder);
    return 0;
}

bool runIn(const QByteArray &zone, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TZ"_s, QString::fromLatin1(zone));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

/** The dates in the file: that of the discharge, then that of the flight. */
QStringList datesIn(const QString &folder)
{
    QFile file(QDir(folder).filePath(u"voltbok.xml"_s));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList dates;
    for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
        if (xml.isStartElement() && xml.attributes().hasAttribute(u"Date"_s))
            dates.append(xml.attributes().value(u"Date"_s).toString());
    }
    return dates;
}

QStringList twice(const QString &text)
{
    return {text, text};
}
} // namespace

void TimeZonesTest::initTestCase()
{
    QCOMPARE(QTimeZone::systemTimeZoneId(), qgetenv("TZ")); // or the test would prove nothing
}

void TimeZonesTest::init()
{
    window = std::make_unique<LogbookWindow>();
    ui = &window->ui();
    window->load(hangar());
}

void TimeZonesTest::cleanup()
{
    window.reset();
}

void TimeZonesTest::aQuickCaptureIsDatedNow()
{
    const QDateTime before = QDateTime::currentDateTime();
    window->clickCard(&pack());
    const QDateTime after = QDateTime::currentDateTime();
    const QDateTime flown = heli().getLogData().constFirst().date;
    QCOMPARE(flown.timeSpec(), Qt::LocalTime);
    QVERIFY2(before <= flown && flown <= after, qPrintable(flown.toString(Qt::ISODateWithMs)));
    QCOMPARE(pack().getDates(), QList<QDateTime>({flown}));

    const QByteArray written = flown.toString(u"hh:mm:ss yyyy"_s).toLatin1();
    QCOMPARE(window->fileBytes().count(written), 2); // once for each record
    window->gui().updateBatteryGui();
    QCOMPARE(heli().getLogData().constFirst().date, flown.addMSecs(-flown.time().msec()));
    QCOMPARE(pack().getDates(), QList<QDateTime>({heli().getLogData().constFirst().date}));
}

void TimeZonesTest::theDischargePageProposesTheLocalDateAndTime()
{
    pack().setViewMode(BatteryWidget::Complex);
    const QDateTime before = QDateTime::currentDateTime();
    window->clickCard(&pack());
    const QDateTime shown(ui->dedt_dischargeDate->date(), ui->tedt_dischargeTime->time());
    QVERIFY2(before <= shown && shown <= QDateTime::currentDateTime(),
             qPrintable(shown.toString(Qt::ISODate)));
    QCOMPARE(ui->dedt_dischargeDate->text(), shown.date().toString(ui->dedt_dischargeDate->displayFormat()));
    QCOMPARE(ui->tedt_dischargeTime->text(), shown.time().toString(ui->tedt_dischargeTime->displayFormat()));

    window->click(ui->pb_save_discharged);
    QCOMPARE(heli().getLogData().constFirst().date, shown);
}

void TimeZonesTest::flightAndDischargeStayTogether_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QTime>("time");
    QTest::newRow("noon") << QDate(2026, 11, 15) << QTime(12, 4, 22);
    QTest::newRow("first second of a day") << QDate(2026, 3, 1) << QTime(0, 0);
    QTest::newRow("last second of a year") << QDate(2026, 12, 31) << QTime(23, 59, 59);
    QTest::newRow("an hour that some clocks show twice") << QDate(2026, 11, 1) << QTime(1, 30);
    QTest::newRow("first day the page offers") << QDate(2005, 1, 1) << QTime(0, 0);
    QTest::newRow("last day the page offers") << QDate(2030, 12, 31) << QTime(23, 59, 59);
}

void TimeZonesTest::flightAndDischargeStayTogether()
{
    QFETCH(QDate, date);
    QFETCH(QTime, time);
    pack().setViewMode(BatteryWidget::Complex);
    window->clickCard(&pack());
    ui->dedt_dischargeDate->setDate(date);
    ui->tedt_dischargeTime->setTime(time);
    window->click(ui->pb_save_discharged);
    const QDateTime recorded = heli().getLogData().constFirst().date;
    QVERIFY(recorded.isValid());
    for (int i = 0; i < 2; ++i) {
        QDateTime flown = heli().getLogData().constFirst().date;
        QCOMPARE(flown.date(), date);
        QCOMPARE(flown.time(), time);
        unsigned int discharged = 0;
        unsigned int current = 0;
        QVERIFY(pack().getEvent(flown, discharged, current));
        QCOMPARE(discharged, 1760U);
        window->gui().updateBatteryGui();
    }
}

void TimeZonesTest::whatOneZoneWritesAnotherReads_data()
{
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QByteArray>("writer");
    QTest::addColumn<QByteArray>("reader");
    QTest::addColumn<QString>("kept");
    QTest::newRow("noon, far to the west") << "2026-11-15T12:04:22" << QByteArray("Pacific/Kiritimati")
                                           << QByteArray("Pacific/Marquesas") << "Sun Nov 15 12:04:22 2026";
    QTest::newRow("midnight, far to the east") << "2026-03-01T00:00:00" << QByteArray("America/Los_Angeles")
                                               << QByteArray("Asia/Kathmandu") << "Sun Mar 1 00:00:00 2026";
    QTest::newRow("an hour that the writer's clocks show twice")
        << "2026-10-25T02:30:00" << QByteArray("Europe/Oslo") << QByteArray("UTC")
        << "Sun Oct 25 02:30:00 2026";
    QTest::newRow("an hour that the reader's clocks show twice")
        << "2026-11-01T01:30:00" << QByteArray("Europe/Oslo") << QByteArray("America/Los_Angeles")
        << "Sun Nov 1 01:30:00 2026";
    QTest::newRow("an hour that clocks elsewhere skip")
        << "2026-03-29T02:30:00" << QByteArray("UTC") << QByteArray("America/Los_Angeles")
        << "Sun Mar 29 02:30:00 2026";
}

void TimeZonesTest::whatOneZoneWritesAnotherReads()
{
    QFETCH(QString, moment);
    QFETCH(QByteArray, writer);
    QFETCH(QByteArray, reader);
    QFETCH(QString, kept);
    const QTemporaryDir folder;
    QVERIFY(runIn(writer, {QLatin1StringView(Write), folder.path(), moment}));
    QCOMPARE(datesIn(folder.path()), twice(kept));
    QVERIFY(runIn(reader, {QLatin1StringView(Resave), folder.path()}));
    QCOMPARE(datesIn(folder.path()), twice(kept));
}

void TimeZonesTest::aTimeThatTheReadersClocksSkipIsLost_data()
{
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QByteArray>("reader");
    QTest::addColumn<QString>("written");
    QTest::newRow("an hour in spring")
        << "2026-03-08T02:30:00" << QByteArray("America/Los_Angeles") << "Sun Mar 8 02:30:00 2026";
    QTest::newRow("half an hour in spring")
        << "2026-10-04T02:10:00" << QByteArray("Australia/Lord_Howe") << "Sun Oct 4 02:10:00 2026";
    QTest::newRow("a whole day") << "2011-12-30T12:00:00" << QByteArray("Pacific/Apia")
                                 << "Fri Dec 30 12:00:00 2011";
}

void TimeZonesTest::aTimeThatTheReadersClocksSkipIsLost()
{
    // A known limit: times are local and in no zone. Where the clocks skip one, it is read as none, by a
    // newer Qt as another one, and the next save leaves that in the file. The flight and its discharge stay,
    // and stay together.
    QFETCH(QString, moment);
    QFETCH(QByteArray, reader);
    QFETCH(QString, written);
    const QTemporaryDir folder;
    QVERIFY(runIn("UTC", {QLatin1StringView(Write), folder.path(), moment}));
    QCOMPARE(datesIn(folder.path()), twice(written));
    QVERIFY(runIn(reader, {QLatin1StringView(Resave), folder.path()}));
    const QStringList left = datesIn(folder.path());
    QCOMPARE(left.size(), 2);
    QVERIFY2(left.constFirst() != written, qPrintable(left.constFirst()));
    QCOMPARE(left.constLast(), left.constFirst());
}

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString first = arguments.value(1);
    if (first == QLatin1StringView(Write) || first == QLatin1StringView(Resave))
        return workElsewhere(arguments);
    TimeZonesTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_timezones.moc"
