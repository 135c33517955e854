// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/cataloguefile.h"
#include "host/safety/recovery.h"
#include "host/safety/wholefile.h"
#include "host/window/recoveryquestion.h"
#include "tests/host/support/answers.h"
#include "tests/host/support/logbookfolder.h"
#include "tests/support/files.h"

#include <QTest>

#include <memory>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {
const QString Restore = u"Restore"_s;
const QString StartEmpty = u"Start with an Empty Logbook"_s;
const QString Quit = u"Quit"_s;
} // namespace

class RecoveryQuestionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_log = std::make_unique<LogbookFolder>();
        m_answers = std::make_unique<Answers>();
    }
    void returnRestoresTheNewestWholeCopy();
    void anotherCopyCanBeChosen();
    void escapeQuits();
    void anEmptyLogbookCanBeBegun();
    void withoutAWholeCopyReturnQuits();
    void whatWasPutAsideIsNeverRestoredByReturnAlone();
    void withoutAnythingToRestoreOnlyTheRestIsAsked();
    void whatCanStillBeReadIsOfferedWithItsCounts();
    void nothingThatCanBeReadIsNotOffered();
    void aDangerousFileIsNeverLoaded();
    void theMatterIsSaidInWholeSentences_data();
    void theMatterIsSaidInWholeSentences();

private:
    std::optional<QByteArray> ask()
    {
        return askForReplacement(*m_answers, m_log->folder(), Recovery::examine(m_log->folder()));
    }
    Answers::Asked asked() const { return m_answers->asked.value(0); }

    std::unique_ptr<LogbookFolder> m_log;
    std::unique_ptr<Answers> m_answers;
};

void RecoveryQuestionTest::returnRestoresTheNewestWholeCopy()
{
    m_log->save("<Voltbok>");
    m_log->copy(LogbookFolder::document(u"a"_s));
    m_log->copy(LogbookFolder::document(u"b"_s));
    m_log->copy("half");
    m_answers->pressReturn();
    QCOMPARE(ask(), LogbookFolder::document(u"b"_s));
    QCOMPARE(asked().question.answers.at(asked().question.preferred), Restore);
    QCOMPARE(asked().question.chosen, 1);
    QCOMPARE(asked().choosable, (QList<bool>{false, true, true}));
}

void RecoveryQuestionTest::anotherCopyCanBeChosen()
{
    m_log->save("<Voltbok>");
    m_log->copy(LogbookFolder::document(u"a"_s));
    m_log->copy(LogbookFolder::document(u"b"_s));
    m_answers->press(Restore, 1);
    QCOMPARE(ask(), LogbookFolder::document(u"a"_s));
}

void RecoveryQuestionTest::escapeQuits()
{
    m_log->save("<Voltbok>");
    m_log->copy(LogbookFolder::document(u"a"_s));
    QCOMPARE(ask(), std::nullopt);
    QCOMPARE(asked().question.answers.at(asked().question.refusal), Quit);
    m_answers->press(Quit, 0);
    QCOMPARE(ask(), std::nullopt);
}

void RecoveryQuestionTest::anEmptyLogbookCanBeBegun()
{
    m_log->save("<Voltbok>");
    m_log->copy(LogbookFolder::document(u"a"_s));
    m_answers->press(StartEmpty, 0);
    QCOMPARE(ask(), CatalogueFile::emptyDocument());
}

void RecoveryQuestionTest::withoutAWholeCopyReturnQuits()
{
    m_log->save(Test::sample().first(60'000));
    m_log->copy("half");
    m_answers->pressReturn();
    QCOMPARE(ask(), std::nullopt);
    QCOMPARE(asked().question.answers.at(asked().question.preferred), Quit);
    QVERIFY2(asked().question.details.contains(u"No whole copy of it was found."_s),
             qPrintable(asked().question.details));
}

void RecoveryQuestionTest::whatWasPutAsideIsNeverRestoredByReturnAlone()
{
    QVERIFY(Test::write(m_log->file(u"voltbok-broken-20261101-120000-000Z.xml"_s),
                        LogbookFolder::document(u"old"_s)));
    m_answers->pressReturn();
    QCOMPARE(ask(), std::nullopt);
    QCOMPARE(asked().rows.size(), 1);
    m_answers->press(Restore, 0);
    QCOMPARE(ask(), LogbookFolder::document(u"old"_s));
}

void RecoveryQuestionTest::withoutAnythingToRestoreOnlyTheRestIsAsked()
{
    m_log->save("hello");
    m_answers->pressReturn();
    QCOMPARE(ask(), std::nullopt);
    QCOMPARE(asked().question.answers, (QStringList{Quit, StartEmpty}));
    QCOMPARE(asked().rows.size(), 0);
    m_answers->press(StartEmpty);
    QCOMPARE(ask(), CatalogueFile::emptyDocument());
}

void RecoveryQuestionTest::whatCanStillBeReadIsOfferedWithItsCounts()
{
    const QByteArray sample = Test::sample();
    m_log->save(sample.first(sample.indexOf("<Model>") + 20));
    m_log->copy(LogbookFolder::document(u"a"_s));
    m_answers->press(Restore, 1);
    const QByteArray document = ask().value_or(QByteArray());
    const Contents read = WholeFile::inspect(document);
    const Contents whole = WholeFile::inspect(sample);
    QCOMPARE(read.problem, QString());
    QCOMPARE(read.batteries, whole.batteries);
    QCOMPARE(read.discharges, whole.discharges);
    const QStringList row = asked().rows.at(1);
    QCOMPARE(row.first(), u"What can still be read of the damaged file"_s);
    QCOMPARE(row.at(2), QString::number(whole.batteries));
    QCOMPARE(row.at(5), QString::number(whole.discharges));
}

void RecoveryQuestionTest::nothingThatCanBeReadIsNotOffered()
{
    m_log->copy(LogbookFolder::document(u"a"_s));
    for (const QByteArray &document : {"hello"_ba, QByteArray(), "<html><body/></html>"_ba}) {
        m_log->save(document);
        ask();
        QCOMPARE(m_answers->asked.constLast().rows.size(), 1);
    }
}

void RecoveryQuestionTest::aDangerousFileIsNeverLoaded()
{
    m_log->copy(LogbookFolder::document(u"a"_s));
    const QByteArray entities = "<!DOCTYPE Voltbok [<!ENTITY a 'b'>]>";
    const QByteArray content = "<Voltbok><Battery><Name>&a;</Name></Battery></Voltbok>";
    for (const QByteArray &document : {entities + content, entities + content + QByteArray(1, '\0')}) {
        m_log->save(document);
        ask();
        QCOMPARE(m_answers->asked.constLast().rows.size(), 1);
    }
    m_log->save(content.first(content.indexOf("</Battery>")).replace("&a;", "b"));
    ask();
    QCOMPARE(m_answers->asked.constLast().rows.size(), 2);
}

void RecoveryQuestionTest::theMatterIsSaidInWholeSentences_data()
{
    QTest::addColumn<bool>("damaged");
    QTest::addColumn<bool>("copy");
    QTest::newRow("damaged") << true << true;
    QTest::newRow("damaged, no copy") << true << false;
    QTest::newRow("missing") << false << true;
}

void RecoveryQuestionTest::theMatterIsSaidInWholeSentences()
{
    QFETCH(bool, damaged);
    QFETCH(bool, copy);
    if (damaged)
        m_log->save("<Voltbok>");
    if (copy)
        m_log->copy(LogbookFolder::document(u"a"_s));
    ask();
    const Question &question = m_answers->asked.constFirst().question;
    QVERIFY2(question.text.contains(m_log->dataFile()), qPrintable(question.text));
    QCOMPARE(question.text.contains(u"is damaged: line 1"_s), damaged);
    QCOMPARE(question.text.contains(u"is missing"_s), !damaged);
    for (const QString &text : {question.text, question.details}) {
        QVERIFY2(text.endsWith(u'.') && text.at(0).isUpper() && !text.contains(u"  "_s), qPrintable(text));
        QVERIFY2(!text.contains(u'%'), qPrintable(text));
    }
    QCOMPARE(question.details.contains(u"voltbok-broken-"_s), damaged); // where the old file goes
    QVERIFY(question.details.contains(u"uit"));                         // what else there is to do
}

QTEST_MAIN(RecoveryQuestionTest)
#include "tst_recoveryquestion.moc"
