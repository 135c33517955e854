// SPDX-License-Identifier: GPL-3.0-or-later
// Logs of real radios have no licence and are no part of this project. Where a folder of them is named when
// the build is configured, they are compared with what another reader took from them.
#include "host/exchange/packfit.h"
#include "host/exchange/radiolog.h"

#include <QDir>
#include <QTest>

#include <algorithm>
#include <array>
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
    void theBatteriesHaveTheCapacityThatAnotherTrialFound();
    void aResistanceIsTheSameInAllFlightsOfAModel();
    void anotherSolutionOfTheFitComesToTheSame();

private:
    static RadioLog logOf(const QString &name);
    QMap<QString, QList<double>> valuesOf(std::optional<double> Session::*value) const;
    static double plainResistance(const std::vector<PackSample> &samples);
    static std::vector<PackSample> samplesOf(const QString &name);
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

/** What the sessions of each model tell. */
QMap<QString, QList<double>> RadioLogRealTest::valuesOf(std::optional<double> Session::*value) const
{
    QMap<QString, QList<double>> values;
    for (const QStringList &line : m_lines) {
        for (const Session &session : logOf(line.first()).sessions) {
            if (session.*value)
                values[session.model].append(*(session.*value));
        }
    }
    return values;
}

void RadioLogRealTest::theBatteriesHaveTheCapacityThatAnotherTrialFound()
{
    // Flights of an aeroplane with three cells and, as it seems, 2,200 mAh on the label.
    constexpr double Least = 1930;
    constexpr double Most = 2300;
    const auto capacities = valuesOf(&Session::capacity);
    QVERIFY(capacities.size() > 1);
    for (const QList<double> &flights : capacities) {
        for (const double capacity : flights)
            QVERIFY2(capacity > 0.9 * Least && capacity < 1.1 * Most, qPrintable(QString::number(capacity)));
    }
}

void RadioLogRealTest::aResistanceIsTheSameInAllFlightsOfAModel()
{
#ifdef VOLTBOK_WITH_GSL
    // What the trial found; other models have other batteries.
    constexpr double Least = 29;
    constexpr double Most = 61;
    int within = 0;
    const auto resistances = valuesOf(&Session::resistance);
    for (const QList<double> &flights : resistances) {
        QVERIFY(flights.size() > 1);
        const auto [least, most] = std::minmax_element(flights.cbegin(), flights.cend());
        QVERIFY2(*most < 1.1 * *least, qPrintable(u"%1 and %2"_s.arg(*least).arg(*most)));
        within += *least > Least && *most < Most ? 1 : 0;
    }
    QVERIFY(within > 0);
#else
    QVERIFY(valuesOf(&Session::resistance).isEmpty());
#endif
}

/**
 * The same equations solved in another way: the sums of least squares, by elimination. It weighs wrong
 * samples as much as right ones.
 */
double RadioLogRealTest::plainResistance(const std::vector<PackSample> &samples)
{
    constexpr size_t Count = 5;
    std::array<std::array<double, Count + 1>, Count> sums{};
    for (const PackSample &sample : samples) {
        const double q = sample.charge / samples.back().charge;
        const std::array<double, Count + 1> row{1, q, q * q, q * q * q, -sample.current, sample.voltage};
        for (size_t i = 0; i < Count; ++i) {
            for (size_t j = 0; j <= Count; ++j)
                sums[i][j] += row[i] * row[j];
        }
    }
    for (size_t column = 0; column < Count; ++column) {
        for (size_t row = column + 1; row < Count; ++row) {
            const double factor = sums[row][column] / sums[column][column];
            for (size_t j = column; j <= Count; ++j)
                sums[row][j] -= factor * sums[column][j];
        }
    }
    return 1000 * sums[Count - 1][Count] / sums[Count - 1][Count - 1];
}

/** The rows of a log by its usual columns, with the integral of the current. */
std::vector<PackSample> RadioLogRealTest::samplesOf(const QString &name)
{
    QFile file(QDir(QStringLiteral(RADIO_LOGS)).filePath(name));
    if (!file.open(QFile::ReadOnly))
        return {};
    const QStringList columns = QString::fromUtf8(file.readLine()).split(u',');
    std::vector<PackSample> samples;
    double charge = 0;
    double before = 0;
    QTime last;
    while (!file.atEnd()) {
        const QStringList fields = QString::fromUtf8(file.readLine()).split(u',');
        const double current = fields.value(columns.indexOf(u"Curr(A)"_s)).toDouble();
        const double volts = fields.value(columns.indexOf(u"VFAS(V)"_s)).toDouble();
        const QTime time = QTime::fromString(fields.value(1), u"HH:mm:ss.zzz"_s);
        if (current > 500)
            continue;
        const int step = last.isValid() ? last.msecsTo(time) : 0;
        charge += step <= 5000 ? before * step / 3600 : 0;
        before = current;
        last = time;
        if (volts > 0 && volts <= 80)
            samples.push_back({charge, current, volts});
    }
    return samples;
}

void RadioLogRealTest::anotherSolutionOfTheFitComesToTheSame()
{
#ifdef VOLTBOK_WITH_GSL
    int compared = 0;
    for (const QStringList &line : std::as_const(m_lines)) {
        for (const Session &session : logOf(line.first()).sessions) {
            if (!session.resistance)
                continue;
            const double plain = plainResistance(samplesOf(line.first()));
            QVERIFY2(std::abs(plain - *session.resistance) < 0.1 * plain,
                     qPrintable(u"%1: %2 for %3"_s.arg(line.first()).arg(*session.resistance).arg(plain)));
            ++compared;
        }
    }
    QVERIFY(compared > 3);
#else
    QVERIFY(valuesOf(&Session::resistance).isEmpty());
#endif
}

QTEST_GUILESS_MAIN(RadioLogRealTest)

#include "tst_radiologreal.moc"
