// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/recordlookup.h"

#include <QPointer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/** The same questions are put to batteries and to models. */
class RecordLookupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreListedInOrder();
    void theLastOfEqualNamesIsFoundOnPurpose();
    void theFirstOfEqualNamesIsTaken();
    void namesAreComparedExactly_data();
    void namesAreComparedExactly();
    void anEmptyListHoldsNothing();
    void whatIsTakenBelongsToTheCaller();
    void whatIsFoundStaysInTheList();

private:
    template <typename Record>
    static QList<Record *> records(QWidget &owner, const QStringList &names);
};

namespace {
void rename(BatteryWidget &battery, QString name)
{
    battery.setBatteryName(name);
}

void rename(ModelWidget &model, const QString &name)
{
    model.setModelName(name);
}
} // namespace

template <typename Record>
QList<Record *> RecordLookupTest::records(QWidget &owner, const QStringList &names)
{
    QList<Record *> list;
    for (const QString &name : names) {
        list.append(new Record(&owner));
        rename(*list.constLast(), name);
    }
    return list;
}

void RecordLookupTest::namesAreListedInOrder()
{
    QWidget owner;
    const QStringList names{u"B"_s, u"A"_s, QString(), u"B"_s};
    QCOMPARE(RecordLookup::names(records<BatteryWidget>(owner, names)), names);
    QCOMPARE(RecordLookup::names(records<ModelWidget>(owner, names)), names);
}

void RecordLookupTest::theLastOfEqualNamesIsFoundOnPurpose()
{
    QWidget owner;
    const QStringList names{u"A"_s, u"B"_s, u"A"_s, u"C"_s};
    const auto batteries = records<BatteryWidget>(owner, names);
    QCOMPARE(RecordLookup::last(batteries, u"A"_s), batteries.at(2));
    QCOMPARE(RecordLookup::last(batteries, u"B"_s), batteries.at(1));
    const auto models = records<ModelWidget>(owner, names);
    QCOMPARE(RecordLookup::last(models, u"A"_s), models.at(2));
    QCOMPARE(RecordLookup::last(models, u"C"_s), models.at(3));
}

void RecordLookupTest::theFirstOfEqualNamesIsTaken()
{
    QWidget owner;
    const QStringList names{u"B"_s, u"A"_s, u"C"_s, u"A"_s};
    auto batteries = records<BatteryWidget>(owner, names);
    const auto remaining = QList{batteries.at(0), batteries.at(2), batteries.at(3)};
    const BatteryWidget *first = batteries.at(1);
    const auto taken = RecordLookup::takeFirst(batteries, u"A"_s);
    QCOMPARE(taken.get(), first);
    QCOMPARE(batteries, remaining);

    auto models = records<ModelWidget>(owner, names);
    QVERIFY(RecordLookup::takeFirst(models, u"A"_s));
    QVERIFY(RecordLookup::takeFirst(models, u"A"_s));
    QVERIFY(!RecordLookup::takeFirst(models, u"A"_s));
    QCOMPARE(RecordLookup::names(models), QStringList({u"B"_s, u"C"_s}));
}

void RecordLookupTest::namesAreComparedExactly_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<int>("index");

    QTest::newRow("as it stands") << "Pack" << 0;
    QTest::newRow("lower case") << "pack" << 1;
    QTest::newRow("a blank behind") << "Pack " << 2;
    QTest::newRow("nothing") << "" << 3;
    QTest::newRow("upper case") << "PACK" << -1;
    QTest::newRow("a part") << "Pac" << -1;
    QTest::newRow("more") << "Packs" << -1;
    QTest::newRow("one letter") << u"\u00e9"_s << 4;
    QTest::newRow("the same letter in two characters") << u"e\u0301"_s << -1;
}

void RecordLookupTest::namesAreComparedExactly()
{
    QFETCH(QString, wanted);
    QFETCH(int, index);
    QWidget owner;
    auto batteries =
        records<BatteryWidget>(owner, {u"Pack"_s, u"pack"_s, u"Pack "_s, QString(), u"\u00e9"_s});
    BatteryWidget *expected = batteries.value(index);
    QCOMPARE(RecordLookup::last(batteries, wanted), expected);
    QCOMPARE(RecordLookup::takeFirst(batteries, wanted).get(), expected);
}

void RecordLookupTest::anEmptyListHoldsNothing()
{
    QList<ModelWidget *> models;
    QVERIFY(RecordLookup::names(models).isEmpty());
    QVERIFY(!RecordLookup::last(models, QString()));
    QVERIFY(!RecordLookup::takeFirst(models, QString()));
}

void RecordLookupTest::whatIsTakenBelongsToTheCaller()
{
    QWidget owner;
    auto models = records<ModelWidget>(owner, {u"A"_s});
    const QPointer<ModelWidget> model = models.constFirst();
    auto taken = RecordLookup::takeFirst(models, u"A"_s);
    QVERIFY(model);
    taken.reset();
    QVERIFY(!model);
    QVERIFY(owner.children().isEmpty());
}

void RecordLookupTest::whatIsFoundStaysInTheList()
{
    QWidget owner;
    const auto models = records<ModelWidget>(owner, {u"A"_s, u"B"_s});
    QVERIFY(RecordLookup::last(models, u"A"_s));
    QCOMPARE(models.size(), 2);
    QCOMPARE(owner.children().size(), 2);
}

QTEST_MAIN(RecordLookupTest)
#include "tst_recordlookup.moc"
