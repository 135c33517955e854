// SPDX-License-Identifier: GPL-3.0-or-later
// What is put down of a session is what another import reads.
#include "host/exchange/sessionvalues.h"

#include <QJsonDocument>
#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

/** Every member has a value of its own. */
Session session()
{
    Session session;
    session.model = u"Swift \u00dc"_s;
    session.sha256 = u"0123abcd"_s;
    session.firstByte = 5'000'000'001; // more than 32 bits hold
    session.endByte = 5'000'000'002;
    session.isResumed = true;
    session.clockRanBack = true;
    session.start = 212'644'000'000'003;
    session.end = 212'644'000'000'004;
    session.rows = 5'000'000'005;
    session.firstLoad = 212'644'000'000'006;
    session.lastLoad = 212'644'000'000'007;
    session.loadTime = 5'000'000'008;
    session.counterFirst = 9.5;
    session.counterLast = 10.5;
    session.integral = 11.5;
    session.doubtful = true;
    session.maxCurrent = 12.5;
    session.rejectedCurrents = 13;
    session.rejectedVoltages = 14;
    session.minVoltage = 15.5;
    session.maxVoltage = 16.5;
    session.restBefore = 17.5;
    session.restAfter = 18.5;
    session.chargeAtRestBefore = 19.5;
    session.chargeAtRestAfter = 20.5;
    session.cells = 21;
    session.resistance = 22.5;
    return session;
}

void compare(const Session &found, const Session &meant)
{
    QCOMPARE(found.model, meant.model);
    QCOMPARE(found.sha256, meant.sha256);
    QCOMPARE(found.firstByte, meant.firstByte);
    QCOMPARE(found.endByte, meant.endByte);
    QCOMPARE(found.isResumed, meant.isResumed);
    QCOMPARE(found.clockRanBack, meant.clockRanBack);
    QCOMPARE(found.start, meant.start);
    QCOMPARE(found.end, meant.end);
    QCOMPARE(found.rows, meant.rows);
    QVERIFY(found.firstLoad == meant.firstLoad);
    QVERIFY(found.lastLoad == meant.lastLoad);
    QVERIFY(found.loadTime == meant.loadTime);
    QVERIFY(found.counterFirst == meant.counterFirst);
    QVERIFY(found.counterLast == meant.counterLast);
    QVERIFY(found.integral == meant.integral);
    QVERIFY(found.doubtful == meant.doubtful);
    QVERIFY(found.maxCurrent == meant.maxCurrent);
    QCOMPARE(found.rejectedCurrents, meant.rejectedCurrents);
    QCOMPARE(found.rejectedVoltages, meant.rejectedVoltages);
    QVERIFY(found.minVoltage == meant.minVoltage);
    QVERIFY(found.maxVoltage == meant.maxVoltage);
    QVERIFY(found.restBefore == meant.restBefore);
    QVERIFY(found.restAfter == meant.restAfter);
    QCOMPARE(found.chargeAtRestBefore, meant.chargeAtRestBefore);
    QCOMPARE(found.chargeAtRestAfter, meant.chargeAtRestAfter);
    QVERIFY(found.cells == meant.cells);
    QVERIFY(found.resistance == meant.resistance);
}

/** As it comes back from the file. */
Session again(const Session &session)
{
    const QByteArray bytes = QJsonDocument(storedSession(session)).toJson();
    return sessionFrom(QJsonDocument::fromJson(bytes).object());
}

} // namespace

class SessionValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyValueComesBack();
    void whatALogDoesNotTellStaysUntold();
    void noughtAndNoAreValues();
    void whatADischargeComesToIsWorkedOutAnew();
    void aFileWrittenEarlierIsStillRead();
    void anIdNamesTheLogAndThePlaceInIt();
};

void SessionValuesTest::everyValueComesBack()
{
    compare(again(session()), session());
}

void SessionValuesTest::whatALogDoesNotTellStaysUntold()
{
    compare(again(Session()), Session());
    QJsonObject stored = storedSession(session());
    for (const QString &key : {u"integral"_s, u"doubtful"_s, u"cells"_s, u"first_load"_s})
        stored[key] = QJsonValue::Null;
    Session meant = session();
    meant.integral.reset();
    meant.doubtful.reset();
    meant.cells.reset();
    meant.firstLoad.reset();
    compare(sessionFrom(stored), meant);
}

void SessionValuesTest::noughtAndNoAreValues()
{
    Session meant;
    meant.doubtful = false;
    meant.counterLast = 0;
    meant.loadTime = 0;
    meant.restBefore = 0;
    compare(again(meant), meant);
}

void SessionValuesTest::whatADischargeComesToIsWorkedOutAnew()
{
    Session whole = session();
    whole.continues = 1;
    whole.counter = 2;
    whole.flightStart = 3;
    whole.duration = 4;
    whole.discharged = 5;
    whole.highestCurrent = 6;
    whole.capacity = 7;
    QCOMPARE(storedSession(whole), storedSession(session()));
}

/** The keys stand in files of users. */
void SessionValuesTest::aFileWrittenEarlierIsStillRead()
{
    const QByteArray earlier = R"({"model": "Swift \u00dc", "sha256": "0123abcd", "first_byte": 5000000001,
        "end_byte": 5000000002, "resumed": true, "clock_ran_back": true, "start": 212644000000003,
        "end": 212644000000004, "rows": 5000000005, "first_load": 212644000000006,
        "last_load": 212644000000007, "load_ms": 5000000008, "counter_first": 9.5, "counter_last": 10.5,
        "integral": 11.5, "doubtful": true, "max_current": 12.5, "rejected_currents": 13,
        "rejected_voltages": 14, "min_voltage": 15.5, "max_voltage": 16.5, "rest_before": 17.5,
        "rest_after": 18.5, "charge_at_rest_before": 19.5, "charge_at_rest_after": 20.5, "cells": 21,
        "resistance": 22.5, "of_a_later_version": 1})";
    compare(sessionFrom(QJsonDocument::fromJson(earlier).object()), session());
}

void SessionValuesTest::anIdNamesTheLogAndThePlaceInIt()
{
    QCOMPARE(sessionId(session()), u"0123abcd:5000000001"_s);
}

QTEST_GUILESS_MAIN(SessionValuesTest)

#include "tst_sessionvalues.moc"
