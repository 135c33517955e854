// SPDX-License-Identifier: GPL-3.0-or-later
// Logs of real radios have no licence and are no part of this project. Where a folder of them is named when
// the build is configured, they are compared with what another reader took from them.
#include "host/exchange/radiolog.h"

#include <QDir>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;
using namespace Host;

class RadioLogRealTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aLogSaysWhatAnotherReaderFound_data();
    void aLogSaysWhatAnotherReaderFound();
    void theFlightsOfADayAreDischarges();
    void theBatteryIsTheSameInAllItsFlights();

private:
    static RadioLog logOf(const QString &name);
    static void compare(const std::optional<double> &ours, const QString &theirs, double tolerance);

    QStringList m_columns;
    QList<QStringList> m_lines;
};

RadioLog RadioLogRealTest::logOf(const QString &name)
{
    QFile file(QDir(QStringLiteral(RADIO_LOGS)).filePath(name));
    return file.open(QFile::ReadOnly) ? readRadioLog(file, name) : RadioLog();
}

void RadioLogRealTest::initTestCase()
{
    QFile file(QDir(QStringLiteral(RADIO_LOGS)).filePath(u"expected.tsv"_s));
    QVERIFY2(file.open(QFile::ReadOnly), qPrintable(file.errorString()));
    m_columns = QString::fromUtf8(file.readLine()).trimmed().split(u'\t');
    while (!file.atEnd()) {
        QString line = QString::fromUtf8(file.readLine());
        line.chop(1);
        m_lines.append(line.split(u'\t'));
    }
    QVERIFY(m_lines.size() > 5);
}

void RadioLogRealTest::aLogSaysWhatAnotherReaderFound_data()
{
    QTest::addColumn<QStringList>("values");
    for (const QStringList &line : std::as_const(m_lines))
        QTest::newRow(qPrintable(line.first())) << line;
}

/** Where we say nothing, the other reader has found nothing, or 0. */
void RadioLogRealTest::compare(const std::optional<double> &ours, const QString &theirs, double tolerance)
{
    const double expected = theirs.toDouble();
    QVERIFY2(std::abs(ours.value_or(0) - expected) <= tolerance,
             qPrintable(u"%1 for %2"_s.arg(ours.value_or(0)).arg(theirs)));
}

void RadioLogRealTest::aLogSaysWhatAnotherReaderFound()
{
    QFETCH(QStringList, values);
    const RadioLog log = logOf(values.first());
    const auto value = [&](const char *column) {
        return values.value(m_columns.indexOf(QLatin1StringView(column)));
    };
    if (value("rows").isEmpty()) {
        QVERIFY(log.sessions.isEmpty());
        QVERIFY(log.status == LogStatus::Empty || log.status == LogStatus::NotARadioLog);
        return;
    }
    QCOMPARE(log.status, LogStatus::Read);
    QCOMPARE(log.sessions.size(), 1);
    const Session &session = log.sessions.first();
    QCOMPARE(clockText(session.start), value("start").replace(u' ', u'T'));
    QCOMPARE(log.rows, value("rows").toInt());
    QCOMPARE(log.skippedRows, value("skipped_rows").toInt());
    compare(static_cast<double>(session.end - session.start) / 1000, value("span_s"), 0.051);
    compare(session.counterFirst, value("counter_first"), 0);
    compare(session.counterLast, value("counter_last"), 0);
    compare(session.integral, value("integral_mAh"), 0.5);
    QCOMPARE(session.rejectedCurrents, value("rejected_current").toInt());
    QCOMPARE(session.rejectedVoltages, value("rejected_voltage").toInt());
    compare(session.maxCurrent, value("max_1s_median3_A"), 0.001);
    const double highest = value("max_V").toDouble();
    if (highest > 2.5) {
        compare(session.minVoltage, value("min_V"), 0.001);
        compare(session.maxVoltage, value("max_V"), 0.001);
    } else {
        QVERIFY(!session.minVoltage && !session.maxVoltage && !session.cells); // none, or wrong by ten
    }
    // The other reader counts the rows over 1 A, those with absurd values among them.
    const double step =
        session.rows > 1 ? value("span_s").toDouble() / static_cast<double>(session.rows - 1) : 0;
    QVERIFY(session.duration.value_or(0) + (1 + session.rejectedCurrents) * step >=
            value("current_gt_1A_s").toDouble() - 1);
}

void RadioLogRealTest::theFlightsOfADayAreDischarges()
{
    QList<Session> sessions;
    for (const QString &name : QDir(QStringLiteral(RADIO_LOGS)).entryList({u"*-20*.csv"_s}, QDir::Files))
        sessions += logOf(name).sessions;
    std::reverse(sessions.begin(), sessions.end());
    joinDischarges(sessions);
    for (const Session &session : std::as_const(sessions)) {
        const auto first = std::find_if(sessions.cbegin(), sessions.cend(), [&session](const Session &other) {
            return session.continues == other.start && session.model == other.model;
        });
        QCOMPARE(session.continues.has_value(), first != sessions.cend());
        QVERIFY(!session.continues || (first->discharged > session.counter && !session.discharged));
        if (session.doubtful.has_value() && !session.continues)
            QVERIFY(session.discharged && session.duration && session.highestCurrent);
    }
}

void RadioLogRealTest::theBatteryIsTheSameInAllItsFlights()
{
    int flights = 0;
    for (const QStringList &line : std::as_const(m_lines)) {
        for (const Session &session : logOf(line.first()).sessions) {
            // An aeroplane with three cells and 2,200 mAh on the label.
            if (session.capacity)
                QVERIFY2(*session.capacity > 1930 * 0.9 && *session.capacity < 2300 * 1.1,
                         qPrintable(QString::number(*session.capacity)));
            if (session.resistance)
                QVERIFY2(*session.resistance > 29 * 0.8 && *session.resistance < 61 * 1.2,
                         qPrintable(QString::number(*session.resistance)));
            flights += session.capacity || session.resistance ? 1 : 0;
        }
    }
    QVERIFY(flights > 1);
}

QTEST_GUILESS_MAIN(RadioLogRealTest)

#include "tst_radiologreal.moc"
