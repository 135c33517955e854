// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/uniquename.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class UniqueNameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNameThatIsTakenGetsACounter_data();
    void aNameThatIsTakenGetsACounter();
    void theFirstNameIsNotComparedAgainAfterARenameOnPurpose();
    void everySmallListIsSearchedByTheRule();
    void noNameBehindTheFirstIsEverMetTwice();
};

namespace {
/** The rule step by step, as it is told. */
QString byTheRule(const QString &base, const QStringList &existing)
{
    QString candidate = base;
    int counter = 0;
    qsizetype index = 0;
    while (index < existing.size()) {
        if (QString::compare(existing[index], candidate, Qt::CaseSensitive) == 0) {
            counter = counter + 1;
            candidate = base + u"_"_s + QString::number(counter, 10);
            index = 1;
        } else {
            index = index + 1;
        }
    }
    return candidate;
}

/** Every list of up to five of these names, repetitions included. */
QList<QStringList> smallLists()
{
    const QStringList names{"P", "P_1", "P_2", "P_3", "P_1_1", "p", ""};
    QList<QStringList> lists{QStringList()};
    for (qsizetype begin = 0, length = 1; length <= 5; ++length) {
        const qsizetype end = lists.size();
        for (; begin < end; ++begin) {
            for (const QString &name : names)
                lists.append(lists.at(begin) + QStringList(name));
        }
    }
    return lists;
}
} // namespace

void UniqueNameTest::aNameThatIsTakenGetsACounter_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QStringList>("existing");
    QTest::addColumn<QString>("expected");

    QTest::newRow("no names") << "Pack" << QStringList{} << "Pack";
    QTest::newRow("other names") << "Pack" << QStringList{"A", "B"} << "Pack";
    QTest::newRow("taken, alone") << "Pack" << QStringList{"Pack"} << "Pack_1";
    QTest::newRow("taken twice over") << "Pack" << QStringList{"Pack", "Pack_1"} << "Pack_2";
    QTest::newRow("taken in the middle") << "Pack" << QStringList{"A", "Pack", "B"} << "Pack_1";
    QTest::newRow("renamed back over an earlier name")
        << "Pack" << QStringList{"A", "Pack_1", "Pack"} << "Pack_2";
    QTest::newRow("counter goes on") << "P" << QStringList{"P", "P_2", "P_1", "P_3"} << "P_4";
    QTest::newRow("the counter may pass nine")
        << "P" << QStringList{"P", "P_1", "P_2", "P_3", "P_4", "P_5", "P_6", "P_7", "P_8", "P_9"} << "P_10";
    QTest::newRow("the suffix is put behind the base as typed")
        << "P_1" << QStringList{"P", "P_1"} << "P_1_1";
    QTest::newRow("letter case matters") << "pack" << QStringList{"Pack", "PACK"} << "pack";
    QTest::newRow("blanks matter") << "Pack " << QStringList{"Pack"} << "Pack ";
    QTest::newRow("empty, unique") << "" << QStringList{"Pack"} << "";
    QTest::newRow("empty, taken") << "" << QStringList{""} << "_1";
}

void UniqueNameTest::aNameThatIsTakenGetsACounter()
{
    QFETCH(QString, base);
    QFETCH(QStringList, existing);
    QTEST(uniqueName(base, existing), "expected");
}

void UniqueNameTest::theFirstNameIsNotComparedAgainAfterARenameOnPurpose()
{
    QCOMPARE(uniqueName(u"MyBattery"_s, {u"MyBattery_1"_s, u"MyBattery"_s}), u"MyBattery_1"_s);
    QCOMPARE(uniqueName(u"P"_s, {u"P_2"_s, u"P"_s, u"P_1"_s}), u"P_2"_s);
}

void UniqueNameTest::everySmallListIsSearchedByTheRule()
{
    const QList<QStringList> lists = smallLists();
    QCOMPARE(lists.size(), 1 + 7 + 49 + 343 + 2401 + 16807);
    for (const QStringList &existing : lists) {
        for (const QString &base : QStringList{"P", "P_1", "p", ""}) {
            if (uniqueName(base, existing) != byTheRule(base, existing))
                QFAIL(qPrintable(base + u" in "_s + existing.join(u',')));
        }
    }
}

void UniqueNameTest::noNameBehindTheFirstIsEverMetTwice()
{
    for (const QStringList &existing : smallLists()) {
        const QString name = uniqueName(u"P"_s, existing);
        if (existing.mid(1).contains(name))
            QFAIL(qPrintable(name + u" in "_s + existing.join(u',')));
    }
}

QTEST_APPLESS_MAIN(UniqueNameTest)
#include "tst_uniquename.moc"
