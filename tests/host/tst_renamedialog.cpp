// SPDX-License-Identifier: GPL-3.0-or-later
// Other names for batteries, models and locations, given in a dialog.
#include "host/window/renamedialog.h"
#include "tests/host/support/flightswindow.h"

#include <QLabel>
#include <QLineEdit>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

class RenameDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsAreRenamedInOneStep_data();
    void recordsAreRenamedInOneStep();
    void aNameThatIsRefusedIsToldAndKept();
    void ofSeveralTheChosenOneIsRenamed();
    void whereThereIsNoneNothingCanBeRenamed();
    void everyFieldHasANameAndABuddy();

private:
    static void rename(FlightsWindow &window, const std::function<void(RenameDialog &)> &use)
    {
        window.give<RenameDialog>(u"Rename…"_s, use);
    }
};

void RenameDialogTest::recordsAreRenamedInOneStep_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Catalogue>("meant");
    Catalogue meant = logbook();
    meant.batteries[1].name = u"Z"_s;
    meant.models[0].batteries[1] = u"Z"_s;
    meant.models[1].batteries[1] = u"Z"_s;
    QTest::newRow("battery") << u"Battery"_s << u"B"_s << meant;
    meant = logbook();
    meant.models[1].name = u"Z"_s;
    QTest::newRow("model") << u"Model"_s << u"Firebrand"_s << meant;
    meant = logbook();
    meant.locations[1] = u"Z"_s;
    meant.models[0].log[1].location = u"Z"_s;
    QTest::newRow("location") << u"Location"_s << u"Hill"_s << meant;
    meant = logbook();
    meant.models[1].log[1].location = u"Z"_s;
    QTest::newRow("location that only a flight knows") << u"Location"_s << u"Beach"_s << meant;
}

void RenameDialogTest::recordsAreRenamedInOneStep()
{
    QFETCH(QString, kind);
    QFETCH(QString, name);
    QFETCH(Catalogue, meant);
    FlightsWindow window;
    const QByteArray before = window.bytes();
    rename(window, [&](RenameDialog &dialog) {
        LogbookWindow::choose(dialog.m_kind, kind);
        LogbookWindow::choose(dialog.m_record, name);
        QCOMPARE(dialog.m_name->text(), name);
        LogbookWindow::type(dialog.m_name, u"Z"_s);
        QTest::keyClick(dialog.m_name, Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
    });
    QVERIFY(window.stored() == meant);
    QVERIFY(window.logbook().undoName().contains(name + u" renamed"_s));
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
}

void RenameDialogTest::aNameThatIsRefusedIsToldAndKept()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    rename(window, [](RenameDialog &dialog) {
        LogbookWindow::type(dialog.m_name, u"B"_s);
        FlightsWindow::confirm(dialog);
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.m_name->text(), u"B"_s);
        LogbookWindow::type(dialog.m_name, u""_s);
        FlightsWindow::confirm(dialog);
        QVERIFY(dialog.isVisible());
    });
    QCOMPARE(window.questions.told().size(), 2);
    QVERIFY(window.questions.told().at(0).contains(u"“B” already"_s));
    QVERIFY(window.questions.told().at(1).contains(u"empty"_s));
    QCOMPARE(window.bytes(), before);
}

void RenameDialogTest::ofSeveralTheChosenOneIsRenamed()
{
    Catalogue catalogue = logbook();
    catalogue.batteries[2].name = u"A"_s;
    FlightsWindow window(catalogue);
    rename(window, [](RenameDialog &dialog) {
        dialog.m_record->setCurrentIndex(1);
        QVERIFY(dialog.m_remark->text().contains(u"everywhere"_s));
        dialog.m_record->setCurrentIndex(2);
        QVERIFY(dialog.m_remark->text().contains(u"Only the chosen one"_s));
        LogbookWindow::type(dialog.m_name, u"Third"_s);
        FlightsWindow::confirm(dialog);
    });
    catalogue.batteries[2].name = u"Third"_s;
    QVERIFY(window.stored() == catalogue);
}

void RenameDialogTest::whereThereIsNoneNothingCanBeRenamed()
{
    FlightsWindow window{Catalogue()};
    rename(window, [](RenameDialog &dialog) {
        QVERIFY(!dialog.m_do->isEnabled());
        QVERIFY(!dialog.m_name->isEnabled());
        QCOMPARE(dialog.m_remark->text(), u"There is none yet."_s);
    });
}

void RenameDialogTest::everyFieldHasANameAndABuddy()
{
    FlightsWindow window;
    rename(window, [](RenameDialog &dialog) {
        for (QWidget *field :
             std::initializer_list<QWidget *>{dialog.m_kind, dialog.m_record, dialog.m_name}) {
            QVERIFY(!field->accessibleName().isEmpty());
            const auto labels = dialog.findChildren<QLabel *>();
            QVERIFY(std::any_of(labels.cbegin(), labels.cend(),
                                [field](const QLabel *label) { return label->buddy() == field; }));
        }
    });
}

QTEST_MAIN(RenameDialogTest)
#include "tst_renamedialog.moc"
