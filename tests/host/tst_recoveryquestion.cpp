// SPDX-License-Identifier: GPL-3.0-or-later
// What is offered in the place of a logbook that cannot be opened, and what comes of each answer.
#include "support/scriptedquestions.h"

#include "host/safety/backups.h"
#include "host/safety/recovery.h"
#include "host/window/recoveryquestion.h"
#include "host/window/versionsmodel.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Host::Question;

class RecoveryQuestionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theVersionsOfADamagedLogbookAreOffered();
    void aMissingLogbookIsNotCalledDamaged();
    void withoutAnyVersionOnlyAnEmptyLogbookIsOffered();
    void aCopyThatIsNotWholeCannotBeChosen();
};

namespace {

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

} // namespace

void RecoveryQuestionTest::theVersionsOfADamagedLogbookAreOffered()
{
    const QTemporaryDir place;
    const Host::StorageFolder folder(place.path());
    const QByteArray older = "<Voltbok><Battery/></Voltbok>";
    const QByteArray newer = "<Voltbok><Battery/><Battery/></Voltbok>";
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QCOMPARE(Host::Backups::add(folder, older, now.addSecs(-60)), QString());
    QCOMPARE(Host::Backups::add(folder, newer, now), QString());
    write(folder.dataFile(), "<Voltbok><Battery>");

    ScriptedQuestions questions;
    const Host::FileState state = Host::Recovery::examine(folder);
    questions.answer(u"Restore"_s);
    QCOMPARE(Host::askForReplacement(questions, folder, state), std::optional(newer));
    const Question asked = questions.asked().constFirst();
    QVERIFY(asked.text.contains(folder.dataFile()));
    QVERIFY(asked.text.contains(u"damaged"_s));
    QVERIFY(asked.details.contains(u"kept"_s));
    QCOMPARE(asked.answers.at(asked.refusal), u"Quit"_s);
    QCOMPARE(asked.answers.at(asked.preferred), u"Restore"_s);
    QVERIFY(questions.tables().constFirst().size() >= 2);

    questions.answer(u"Restore"_s, 1);
    QCOMPARE(Host::askForReplacement(questions, folder, state), std::optional(older));
    questions.answer(u"Quit"_s);
    QCOMPARE(Host::askForReplacement(questions, folder, state), std::nullopt);
    questions.answer(u"Start with an Empty Logbook"_s);
    const std::optional<QByteArray> empty = Host::askForReplacement(questions, folder, state);
    QVERIFY(empty && empty->contains("Voltbok") && !empty->contains("Battery"));
    QVERIFY(questions.isDone());
}

void RecoveryQuestionTest::aMissingLogbookIsNotCalledDamaged()
{
    const QTemporaryDir place;
    const Host::StorageFolder folder(place.path());
    QCOMPARE(Host::Backups::add(folder, "<Voltbok/>", QDateTime::currentDateTimeUtc()), QString());
    ScriptedQuestions questions;
    questions.answer(u"Quit"_s);
    QCOMPARE(Host::askForReplacement(questions, folder, Host::Recovery::examine(folder)), std::nullopt);
    QVERIFY(questions.asked().constFirst().text.contains(u"missing"_s));
    QVERIFY(!questions.asked().constFirst().details.contains(u"damaged"_s));
}

void RecoveryQuestionTest::withoutAnyVersionOnlyAnEmptyLogbookIsOffered()
{
    const QTemporaryDir place;
    const Host::StorageFolder folder(place.path());
    write(folder.dataFile(), "<Volt");
    ScriptedQuestions questions;
    questions.answer(u"Quit"_s);
    QCOMPARE(Host::askForReplacement(questions, folder, Host::Recovery::examine(folder)), std::nullopt);
    const Question asked = questions.asked().constFirst();
    QCOMPARE(asked.answers, QStringList({u"Quit"_s, u"Start with an Empty Logbook"_s}));
    QCOMPARE(asked.answers.at(asked.preferred), u"Quit"_s);
    QCOMPARE(questions.tables().constFirst(), QStringList());
}

void RecoveryQuestionTest::aCopyThatIsNotWholeCannotBeChosen()
{
    const QTemporaryDir place;
    const Host::StorageFolder folder(place.path());
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QCOMPARE(Host::Backups::add(folder, "<Voltbok/>", now.addSecs(-60)), QString());
    QCOMPARE(Host::Backups::add(folder, "<Voltbok><Battery/><Model/></Voltbok>", now), QString());
    const QString newest = folder.backups().filePath(Host::Backups::list(folder).constFirst().name);
    write(newest, "<Voltbok><Batt");
    const Host::VersionsModel versions(folder);
    QCOMPARE(versions.rowCount(), 2);
    QCOMPARE(versions.firstWhole(), 1);
    QCOMPARE(versions.flags(versions.index(0, 0)), Qt::NoItemFlags);
    QVERIFY(versions.index(0, 0).data().toString().contains(u"damaged"_s));
    QVERIFY(versions.flags(versions.index(1, 0)) & Qt::ItemIsSelectable);
    QVERIFY(!versions.index(1, 0).data().toString().contains(u"damaged"_s));
}

QTEST_MAIN(RecoveryQuestionTest)
#include "tst_recoveryquestion.moc"
