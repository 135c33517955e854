// SPDX-License-Identifier: GPL-3.0-or-later
// The page that chooses between quick and full capture, and the preference that keeps the choice.
#include "tests/support/logbookwindow.h"
#include "tests/support/samples.h"

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class CaptureModeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void quickIsTheFirstChoice();
    void aChoiceIsStoredAndReachesEveryCard();
    void aChoiceWritesNoFileAndKeepsThePage();
    void aReloadRestoresFullMode();
    void theNextWindowRestoresFullMode();
    void quickModeNeedsNoRestoring();
    void anotherStoredValueCountsAsNone_data();
    void anotherStoredValueCountsAsNone();
    void theModeButtonsKeepTheirStateWhenNothingIsStored();
    void theModeIsNamedByTheButtonsProperty_data();
    void theModeIsNamedByTheButtonsProperty();

private:
    std::unique_ptr<LogbookWindow> window;
    Ui_VoltbokGui *ui = nullptr;

    void choose(QRadioButton *mode);
    void expectEveryCard(BatteryWidget::ViewMode mode) const;
};

namespace {
constexpr QLatin1StringView Key = LogbookWindow::ModeKey;

QString storedMode()
{
    return RotavexPlugin::rotavexSettings->value(Key).toString();
}
} // namespace

void CaptureModeTest::init()
{
    window = std::make_unique<LogbookWindow>();
    ui = &window->ui();
    window->load(hangar());
}

void CaptureModeTest::cleanup()
{
    window.reset();
}

void CaptureModeTest::choose(QRadioButton *mode)
{
    while (ui->stackedWidget->currentWidget() != ui->optionsView)
        window->click(ui->pb_options);
    window->click(ui->pb_mode);
    window->click(mode);
}

void CaptureModeTest::expectEveryCard(BatteryWidget::ViewMode mode) const
{
    for (const BatteryWidget *card : window->gui().batteryList) {
        QCOMPARE(card->getViewMode(), mode);
        QCOMPARE(card->findChild<QLabel *>(u"lbl_discharged"_s)->isHidden(), mode == BatteryWidget::Simple);
    }
}

void CaptureModeTest::quickIsTheFirstChoice()
{
    QVERIFY(ui->rb_modeSimple->isChecked());
    QVERIFY(!RotavexPlugin::rotavexSettings->contains(Key));
    expectEveryCard(BatteryWidget::Simple);
}

void CaptureModeTest::aChoiceIsStoredAndReachesEveryCard()
{
    choose(ui->rb_modeAdvanced);
    QCOMPARE(storedMode(), u"Complex"_s);
    expectEveryCard(BatteryWidget::Complex); // on show or not
    choose(ui->rb_modeSimple);
    QCOMPARE(storedMode(), u"Simple"_s);
    expectEveryCard(BatteryWidget::Simple);
    QCOMPARE(RotavexPlugin::rotavexSettings->group(), QString()); // no group stays open
}

void CaptureModeTest::aChoiceWritesNoFileAndKeepsThePage()
{
    choose(ui->rb_modeAdvanced);
    QCOMPARE(window->fileBytes(), hangar());
    QCOMPARE(ui->stackedWidget->currentWidget(), ui->modeView);
    QCOMPARE(window->gui().currentPage, 2);
}

void CaptureModeTest::aReloadRestoresFullMode()
{
    choose(ui->rb_modeAdvanced);
    window->gui().updateBatteryGui();
    expectEveryCard(BatteryWidget::Complex);
    QVERIFY(ui->rb_modeAdvanced->isChecked());
    QCOMPARE(storedMode(), u"Complex"_s);
}

void CaptureModeTest::theNextWindowRestoresFullMode()
{
    choose(ui->rb_modeAdvanced);
    window->restart();
    ui = &window->ui();
    expectEveryCard(BatteryWidget::Complex);
    QVERIFY(ui->rb_modeAdvanced->isChecked() && !ui->rb_modeSimple->isChecked());
}

void CaptureModeTest::quickModeNeedsNoRestoring()
{
    choose(ui->rb_modeAdvanced);
    choose(ui->rb_modeSimple);
    window->gui().updateBatteryGui();
    expectEveryCard(BatteryWidget::Simple);
    QCOMPARE(storedMode(), u"Simple"_s);
}

void CaptureModeTest::anotherStoredValueCountsAsNone_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("quick") << QVariant("Simple");
    QTest::newRow("letter case matters") << QVariant("complex");
    QTest::newRow("blanks matter") << QVariant("Complex ");
    QTest::newRow("number") << QVariant(1);
    QTest::newRow("empty") << QVariant("");
}

void CaptureModeTest::anotherStoredValueCountsAsNone()
{
    QFETCH(QVariant, stored);
    RotavexPlugin::rotavexSettings->setValue(Key, stored);
    window->gui().updateBatteryGui();
    expectEveryCard(BatteryWidget::Simple);
    QVERIFY(ui->rb_modeSimple->isChecked());
    QCOMPARE(RotavexPlugin::rotavexSettings->value(Key), stored);
}

void CaptureModeTest::theModeButtonsKeepTheirStateWhenNothingIsStored()
{
    choose(ui->rb_modeAdvanced);
    RotavexPlugin::rotavexSettings->remove(Key);
    window->gui().updateBatteryGui();
    expectEveryCard(BatteryWidget::Simple);
    QVERIFY(ui->rb_modeAdvanced->isChecked());
    QVERIFY(!RotavexPlugin::rotavexSettings->contains(Key));
}

void CaptureModeTest::theModeIsNamedByTheButtonsProperty_data()
{
    QTest::addColumn<QVariant>("property");
    QTest::addColumn<QString>("stored");
    QTest::newRow("full") << QVariant("Complex") << "Complex";
    QTest::newRow("quick") << QVariant("Simple") << "Simple";
    QTest::newRow("letter case matters") << QVariant("COMPLEX") << "Simple";
    QTest::newRow("none") << QVariant() << "Simple";
}

void CaptureModeTest::theModeIsNamedByTheButtonsProperty()
{
    QFETCH(QVariant, property);
    QPushButton button;
    button.setProperty("ViewMode", property);
    window->gui().on_btnGrp_mode_buttonClicked(&button);
    QTEST(storedMode(), "stored");
    expectEveryCard(property == QVariant("Complex") ? BatteryWidget::Complex : BatteryWidget::Simple);
}

QTEST_MAIN(CaptureModeTest)
#include "tst_capturemode.moc"
