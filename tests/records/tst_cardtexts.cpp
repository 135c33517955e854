// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/batterywidget.h"
#include "tests/records/card.h"
#include "tests/support/foreignlanguage.h"
#include "tests/support/warnings.h"

#include <QPushButton>
#include <QTest>

#include <functional>

using namespace Qt::Literals::StringLiterals;

class CardTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aNewCardShowsThePlaceholders_data();
    void aNewCardShowsThePlaceholders();
    void aSetterRefreshesItsLabel_data();
    void aSetterRefreshesItsLabel();
    void theNameIsShownAsItStands();
    void thePurchaseDateIsNotShown();
    void theRatesShareOneLabel();
    void numbersAreNotGroupedInAnyLanguage();
    void theCaptionsFollowTheLanguage();
};

using Card::find;

void CardTextsTest::init()
{
    Test::failOnWarnings();
}

void CardTextsTest::aNewCardShowsThePlaceholders_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("name") << "lbl_name"
                          << "Lipolar";
    QTest::newRow("capacity") << "lbl_capacity"
                              << "4500mAh";
    QTest::newRow("rate") << "lbl_rate"
                          << "30C";
    QTest::newRow("last use") << "lbl_dateTime"
                              << "01.01.2018 23:15:59";
    QTest::newRow("discharged") << "lbl_discharged"
                                << "4000mAh";
    QTest::newRow("current") << "lbl_maxCurrent"
                             << "100,0A";
    QTest::newRow("cycles") << "lbl_cycles"
                            << "11111";
    QTest::newRow("caption of last use") << "label_6"
                                         << "Last use:";
    QTest::newRow("caption of discharged") << "lbl_discharged_label"
                                           << "Discharged:";
    QTest::newRow("caption of current") << "lbl_maxCurrent_label"
                                        << "Max. Current:";
    QTest::newRow("caption of cycles") << "label"
                                       << "Cycles:";
}

void CardTextsTest::aNewCardShowsThePlaceholders()
{
    QFETCH(QString, name);
    BatteryWidget card;
    QTEST(find(card, qPrintable(name))->text(), "text");
    QCOMPARE(find<QPushButton>(card, "pushButton")->text(), u"Text"_s);
}

void CardTextsTest::aSetterRefreshesItsLabel_data()
{
    using Setter = std::function<void(BatteryWidget &)>;
    QTest::addColumn<Setter>("set");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *tag, const char *name, const char *text, const Setter &set) {
        QTest::newRow(tag) << set << name << text;
    };
    row("capacity", "lbl_capacity", "2200mAh", [](BatteryWidget &card) { card.setBatteryCapacity(2200); });
    row("no capacity", "lbl_capacity", "0mAh", [](BatteryWidget &card) { card.setBatteryCapacity(0); });
    row("largest capacity", "lbl_capacity", "4294967295mAh",
        [](BatteryWidget &card) { card.setBatteryCapacity(4294967295U); });
    row("cycles", "lbl_cycles", "12", [](BatteryWidget &card) { card.setBatteryCycles(12); });
    row("no cycles", "lbl_cycles", "0", [](BatteryWidget &card) { card.setBatteryCycles(0); });
    row("discharged", "lbl_discharged", "1760mAh",
        [](BatteryWidget &card) { card.setBatteryLastDischarged(1760); });
    row("current", "lbl_maxCurrent", "45.50A",
        [](BatteryWidget &card) { card.setBatteryLastMaxCurrent(4550); });
    row("rating", "lbl_rate", "25C", [](BatteryWidget &card) { card.setBatteryRating(25); });
    row("charge rate alone", "lbl_rate", "0C/1.5C",
        [](BatteryWidget &card) { card.setBatteryChargeRate(15); });
    row("charge rate 0", "lbl_rate", "30C", [](BatteryWidget &card) { card.setBatteryChargeRate(0); });
    row("last use", "lbl_dateTime", "Sun Nov 15 12:04:22 2026", [](BatteryWidget &card) {
        card.setLastUpdated(QDateTime(QDate(2026, 11, 15), QTime(12, 4, 22, 345)));
    });
    row("never used", "lbl_dateTime", "", [](BatteryWidget &card) { card.setLastUpdated(QDateTime()); });
}

void CardTextsTest::aSetterRefreshesItsLabel()
{
    QFETCH(std::function<void(BatteryWidget &)>, set);
    QFETCH(QString, name);
    BatteryWidget card;
    set(card);
    QTEST(find(card, qPrintable(name))->text(), "text");
}

void CardTextsTest::theNameIsShownAsItStands()
{
    BatteryWidget card;
    for (QString name : {u"Pack A"_s, u"<b>R&D</b> & %1"_s, u"  "_s, QString()}) {
        card.setBatteryName(name);
        QCOMPARE(find(card, "lbl_name")->text(), name);
    }
    QString markup = u"<b>X</b>"_s;
    QString plain = u"X"_s;
    card.setBatteryName(markup);
    const int withMarkup = find(card, "lbl_name")->sizeHint().width();
    card.setBatteryName(plain);
    QVERIFY(withMarkup > find(card, "lbl_name")->sizeHint().width());
}

void CardTextsTest::thePurchaseDateIsNotShown()
{
    BatteryWidget card;
    QDate date(2025, 3, 9);
    card.setDateOfPurchase(date);
    const QList<QLabel *> labels = card.findChildren<QLabel *>();
    for (const QLabel *label : labels)
        QVERIFY2(!label->text().contains(u"2025"_s), qPrintable(label->objectName()));
    QCOMPARE(labels.size(), 11);
}

void CardTextsTest::theRatesShareOneLabel()
{
    BatteryWidget card;
    const QLabel *label = find(card, "lbl_rate");
    card.setBatteryRating(25);
    card.setBatteryChargeRate(0);
    QCOMPARE(label->text(), u"25C"_s);
    card.setBatteryChargeRate(20);
    QCOMPARE(label->text(), u"25C/2.0C"_s);
    card.setBatteryRating(40);
    QCOMPARE(label->text(), u"40C/2.0C"_s);
}

void CardTextsTest::numbersAreNotGroupedInAnyLanguage()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    BatteryWidget card;
    card.setBatteryCapacity(1234567);
    card.setBatteryLastMaxCurrent(123456705);
    card.setLastUpdated(QDateTime(QDate(2026, 10, 6), QTime(8, 0)));
    QLocale::setDefault(before);
    QCOMPARE(find(card, "lbl_capacity")->text(), u"1234567mAh"_s);
    QCOMPARE(find(card, "lbl_maxCurrent")->text(), u"1234567.5A"_s);
    QCOMPARE(find(card, "lbl_dateTime")->text(), u"Tue Oct 6 08:00:00 2026"_s);
}

void CardTextsTest::theCaptionsFollowTheLanguage()
{
    BatteryWidget card;
    QString name = u"Pack A"_s;
    card.setBatteryName(name);
    card.setBatteryCapacity(2200);
    card.setViewMode(BatteryWidget::Complex);

    Test::ForeignLanguage translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::processEvents();
    QCOMPARE(find(card, "label_6")->text(), u"[Last use:]"_s);
    QCOMPARE(find(card, "lbl_discharged_label")->text(), u"[Discharged:]"_s);
    QCOMPARE(find(card, "lbl_maxCurrent_label")->text(), u"[Max. Current:]"_s);
    QCOMPARE(find(card, "label")->text(), u"[Cycles:]"_s);
    QCOMPARE(card.windowTitle(), u"[BatteryWidget]"_s);
    QCOMPARE(find(card, "lbl_name")->text(), u"Pack A"_s);
    QCOMPARE(find(card, "lbl_capacity")->text(), u"2200mAh"_s);
    QVERIFY(!find(card, "lbl_discharged")->isHidden());

    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCoreApplication::processEvents();
    QCOMPARE(find(card, "label")->text(), u"Cycles:"_s);
}

QTEST_MAIN(CardTextsTest)
#include "tst_cardtexts.moc"
