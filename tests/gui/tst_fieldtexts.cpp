// SPDX-License-Identifier: GPL-3.0-or-later
// The language changes: default texts follow, whatever else stands in the fields stays.
#include "tests/support/datafile.h"
#include "tests/support/logbookwindow.h"

#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

/** Puts a "~" before every text of the window that is a word. */
class TildeTranslator : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        const bool isWord = qstrcmp(context, "VoltbokGui") == 0 && !text.isEmpty() && text.at(0).isLetter();
        return isWord ? u'~' + text : QString();
    }
};

class FieldTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aFieldWithItsDefaultTextFollows();
    void aDefaultTextTypedAgainFollows();
    void aRecordOnItsPageStaysEvenIfItReadsLikeADefaultText();
    void whetherAFieldWasTypedIntoIsRemembered();

private:
    std::unique_ptr<TildeTranslator> translator;
    std::unique_ptr<LogbookWindow> window;
    Ui_VoltbokGui *ui = nullptr;

    void changeLanguage();
    void changeLanguageBack();
    void follow(const QList<QAbstractButton *> &buttons);
};

void FieldTextsTest::init()
{
    translator = std::make_unique<TildeTranslator>();
    window = std::make_unique<LogbookWindow>();
    ui = &window->ui();
    QVERIFY(QTest::qWaitForWindowActive(&window->gui()));
}

void FieldTextsTest::cleanup()
{
    window.reset();
    translator.reset();
    QCoreApplication::sendPostedEvents();
}

void FieldTextsTest::changeLanguage()
{
    QVERIFY(QCoreApplication::installTranslator(translator.get()));
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents();
}

void FieldTextsTest::changeLanguageBack()
{
    QVERIFY(QCoreApplication::removeTranslator(translator.get()));
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents();
}

void FieldTextsTest::follow(const QList<QAbstractButton *> &buttons)
{
    for (QAbstractButton *button : buttons)
        window->click(button);
}

void FieldTextsTest::aFieldWithItsDefaultTextFollows()
{
    follow({ui->pb_options, ui->pb_edit_data, ui->pb_choose_addbattery});
    QCOMPARE(ui->ledt_name->selectedText(), u"MyBattery"_s);
    changeLanguage();
    QCOMPARE(ui->ledt_name->text(), u"~MyBattery"_s);
    QCOMPARE(ui->ledt_name->selectedText(), u"~MyBattery"_s); // typing still replaces all of it
    QCOMPARE(ui->ledt_addheli_name->text(), u"~MyHeli"_s);
    QCOMPARE(ui->ledt_addheli_type->text(), u"~Heli"_s);
    QCOMPARE(ui->ledt_modifyheli_type->text(), u"~Heli"_s);
    QCOMPARE(ui->ledt_location_new->text(), u"MyLocation"_s); // never translated
    changeLanguageBack();
    QCOMPARE(ui->ledt_name->text(), u"MyBattery"_s);
    QCOMPARE(ui->ledt_modifyheli_type->text(), u"Heli"_s);
}

void FieldTextsTest::aDefaultTextTypedAgainFollows()
{
    follow({ui->pb_options, ui->pb_edit_data, ui->pb_choose_addbattery});
    window->type(ui->ledt_name, u"Something"_s);
    changeLanguage();
    QCOMPARE(ui->ledt_name->text(), u"Something"_s);
    window->type(ui->ledt_name, u"~MyBattery"_s);
    changeLanguageBack();
    QCOMPARE(ui->ledt_name->text(), u"MyBattery"_s);
    window->type(ui->ledt_name, u"~MyBattery"_s); // the default text of another language is a name
    changeLanguage();
    QCOMPARE(ui->ledt_name->text(), u"~MyBattery"_s);
}

void FieldTextsTest::aRecordOnItsPageStaysEvenIfItReadsLikeADefaultText()
{
    window->load(Test::document({{{u"MyBattery"_s}}, {{u"MyHeli"_s}}})); // its type is "Heli"
    follow({ui->pb_options, ui->pb_edit_data, ui->pb_choose_modify_model});
    QCOMPARE(ui->ledt_modifyheli_name->text(), u"MyHeli"_s);
    changeLanguage();
    QCOMPARE(ui->ledt_modifyheli_name->text(), u"MyHeli"_s);
    QCOMPARE(ui->ledt_modifyheli_type->text(), u"Heli"_s);
    window->type(ui->ledt_modifyheli_size, u"450"_s);
    window->click(ui->pb_update_model);
    QVERIFY(window->fileBytes().contains("<Type>Heli</Type>"));
    QCOMPARE(window->model(u"MyHeli"_s)->getModelSize(), 450u);
}

void FieldTextsTest::whetherAFieldWasTypedIntoIsRemembered()
{
    follow({ui->pb_options, ui->pb_edit_data, ui->pb_choose_addbattery});
    window->type(ui->ledt_name, u"Mine"_s);
    changeLanguage();
    QVERIFY(ui->ledt_name->isModified());
    QVERIFY(!ui->ledt_capacity->isModified());
}

QTEST_MAIN(FieldTextsTest)
#include "tst_fieldtexts.moc"
