// SPDX-License-Identifier: GPL-3.0-or-later
// "voltbok check", run as a user runs it.
#include "host/data/cataloguefile.h"
#include "tests/host/support/plainlogbook.h"
#include "tests/host/support/program.h"
#include "tests/support/files.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <sys/stat.h>

#include <thread>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

namespace {

/** One flight with its discharge. */
QByteArray faultless()
{
    Catalogue catalogue;
    catalogue.batteries = {battery(u"A"_s, {{at(9, 0), 1500, 3000}})};
    catalogue.models = {model(u"Skylark"_s, {u"A"_s}, {flight(at(9, 0))})};
    return CatalogueFile::save(catalogue).document;
}

} // namespace

class CheckCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingFoundIsSilence();
    void eachFindingIsALine();
    void jsonTellsTheSame();
    void withoutAFileItIsAboutTheLogbook();
    void aFolderWithoutAFileHoldsNothingToFind();
    void aFileThatIsMissingBesideItsCopiesIsBroken();
    void theSampleNeedsNotHaveBeenOpened();
    void aFileThatIsNotWholeIsBroken_data();
    void aFileThatIsNotWholeIsBroken();
    void jsonSaysThatAFileIsNotWhole();
    void theEndOfASaveIsWaitedFor();
    void whatIsNotOpenedIsAComplaint_data();
    void whatIsNotOpenedIsAComplaint();
    void aTerminalObeysNothingInAFinding();
    void anOutputThatIsFullIsAFailure();

private:
    QString put(const QByteArray &document, const QString &name = u"log.xml"_s) const
    {
        if (!Test::write(m_program->home(name), document))
            QTest::qFail("A file cannot be written.", __FILE__, __LINE__);
        return name;
    }
    static QJsonObject object(const Program::Result &result)
    {
        return QJsonDocument::fromJson(result.output.toUtf8()).object();
    }

    std::unique_ptr<Program> m_program;
};

void CheckCommandTest::init()
{
    m_program = std::make_unique<Program>();
}

void CheckCommandTest::nothingFoundIsSilence()
{
    const Program::Result result = m_program->run({u"check"_s, put(faultless())});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors, QString());
    QCOMPARE(Test::contents(m_program->home(u"log.xml"_s)), faultless());
}

void CheckCommandTest::eachFindingIsALine()
{
    const QByteArray document =
        faultless().replace("2200", "many").replace("09:00:00 2026\" L", "09:30:00 2026\" L");
    const Program::Result result = m_program->run({u"check"_s, put(document)});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QString());
    QCOMPARE(
        result.output,
        u"unread: battery “A”: the text “many” of “Capacity” in line 6\n"
        "flight without discharge: model “Skylark”: no battery has a discharge at the time of the flight "
        "of 2026-05-03 09:30:00 (line 28)\n"
        "discharge without flight: battery “A”: no model has a flight at the time of the discharge of "
        "2026-05-03 09:00:00 (line 14)\n"_s);
}

void CheckCommandTest::jsonTellsTheSame()
{
    const QString file = put(faultless().replace("<Type>", "<!-- mine --><Type>"));
    const Program::Result result = m_program->run({u"check"_s, u"--json"_s, file});
    QCOMPARE(result.status, 1);
    const QJsonObject finding{{u"kind"_s, u"dropped"_s},
                              {u"what"_s, u"model “Skylark”: a comment in line 19"_s}};
    QCOMPARE(object(result),
             (QJsonObject{{u"file"_s, file}, {u"whole"_s, true}, {u"findings"_s, QJsonArray{finding}}}));

    put(faultless());
    const Program::Result nothing = m_program->run({u"--json"_s, u"check"_s, file});
    QCOMPARE(nothing.status, 0);
    QCOMPARE(object(nothing),
             (QJsonObject{{u"file"_s, file}, {u"whole"_s, true}, {u"findings"_s, QJsonArray()}}));
}

void CheckCommandTest::withoutAFileItIsAboutTheLogbook()
{
    QVERIFY(QDir(m_program->home()).mkdir(u"log"_s));
    put(faultless().replace("2200", "many"), u"log/voltbok.xml"_s);
    const Program::Result result =
        m_program->run({u"check"_s, u"--json"_s, u"--data"_s, m_program->home(u"log"_s)});
    QCOMPARE(result.status, 1);
    QCOMPARE(object(result).value(u"file"_s).toString(), m_program->home(u"log/voltbok.xml"_s));
    QCOMPARE(object(result).value(u"findings"_s).toArray().size(), 1);
    QCOMPARE(
        QDir(m_program->home(u"log"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{u"voltbok.xml"_s});
}

void CheckCommandTest::aFolderWithoutAFileHoldsNothingToFind()
{
    QVERIFY(QDir(m_program->home()).mkdir(u"log"_s));
    const Program::Result result = m_program->run({u"check"_s, u"--json"_s, u"--data"_s, u"log"_s});
    QCOMPARE(result.status, 0);
    QCOMPARE(object(result).value(u"whole"_s), QJsonValue(true));
    QCOMPARE(m_program->run({u"check"_s}).status, 0); // the user's own, before its first use
    const Program::Result none = m_program->run({u"check"_s, u"--data"_s, u"none"_s});
    QCOMPARE(none.status, 1);
    QVERIFY(none.errors.startsWith(u"voltbok: There is no folder"_s));
}

void CheckCommandTest::aFileThatIsMissingBesideItsCopiesIsBroken()
{
    QVERIFY(QDir(m_program->home()).mkpath(u"log/backups"_s));
    put(faultless(), u"log/backups/voltbok-00000042-20261121-195112-123Z.xml"_s);
    const Program::Result result = m_program->run({u"check"_s, u"--json"_s, u"--data"_s, u"log"_s});
    QCOMPARE(result.status, 1);
    QCOMPARE(object(result).value(u"whole"_s), QJsonValue(false));
    QVERIFY(result.output.contains(u"it is missing"_s));
}

void CheckCommandTest::theSampleNeedsNotHaveBeenOpened()
{
    const Program::Result result = m_program->run({u"--demo"_s, u"check"_s, u"--json"_s});
    QCOMPARE(result.status, 1); // benches discharge, too
    QCOMPARE(object(result).value(u"whole"_s), QJsonValue(true));
    QVERIFY(result.output.contains(u"discharge without flight"_s));
    QVERIFY(!result.output.contains(u"dropped"_s) && !result.output.contains(u"unread"_s));
    QVERIFY(!QFileInfo::exists(m_program->home(u"data"_s)));
}

void CheckCommandTest::aFileThatIsNotWholeIsBroken_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("what");
    QTest::newRow("cut off") << faultless().left(faultless().indexOf("<Cycles>"))
                             << u"line 10 cannot be understood (Premature end of document)"_s;
    QTest::newRow("an end tag is missing")
        << faultless().replace("</Data>", "") << u"line 16 cannot be understood"_s;
    QTest::newRow("empty") << QByteArray() << u"it is empty"_s;
    QTest::newRow("another document") << "<html/>"_ba << u"its root element is “html”"_s;
    QTest::newRow("entities") << "<?xml version=\"1.0\"?>\n<!DOCTYPE a [<!ENTITY b \"c\">]>\n<Voltbok/>"_ba
                              << u"a document type of its own in line 2"_s;
    QTest::newRow("zero bytes") << QByteArray("<Voltbok>\n\n\0</Voltbok>", 22) << u"zero bytes in line 3"_s;
    QTest::newRow("a character that XML does not have")
        << faultless().replace("<Name>A", "<Name>\001A") << u"line 5 cannot be understood"_s;
}

void CheckCommandTest::aFileThatIsNotWholeIsBroken()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, what);
    const QString file = put(document);
    const Program::Result result = m_program->run({u"check"_s, file});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output.count(u'\n'), 1);
    QVERIFY2(result.output.startsWith(u"broken: the file is not whole: "_s), qPrintable(result.output));
    QVERIFY2(result.output.contains(what), qPrintable(result.output));
}

void CheckCommandTest::jsonSaysThatAFileIsNotWhole()
{
    const QString file = put(faultless().left(400));
    const QJsonObject json = object(m_program->run({u"check"_s, u"--json"_s, file}));
    QCOMPARE(json.value(u"whole"_s), QJsonValue(false));
    QCOMPARE(json.value(u"findings"_s).toArray().size(), 1);
    QCOMPARE(json.value(u"findings"_s).toArray().first().toObject().value(u"kind"_s),
             QJsonValue(u"broken"_s));
}

void CheckCommandTest::theEndOfASaveIsWaitedFor()
{
    const QString file = put(faultless().left(400));
    std::thread saver([this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(700));
        put(faultless());
    });
    const Program::Result result = m_program->run({u"check"_s, file});
    saver.join();
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QString());
}

void CheckCommandTest::whatIsNotOpenedIsAComplaint_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << u"none.xml"_s << u"there is no such file"_s;
    QTest::newRow("a folder") << u"folder"_s << u"it is a folder"_s;
    QTest::newRow("a pipe") << u"pipe"_s << u"it is not a regular file"_s;
    QTest::newRow("too large") << u"large"_s << u"it is larger than 256 MB"_s;
    QTest::newRow("a link to nowhere") << u"link"_s << u"it is a link to"_s;
}

void CheckCommandTest::whatIsNotOpenedIsAComplaint()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    QVERIFY(QDir(m_program->home()).mkdir(u"folder"_s));
    QCOMPARE(mkfifo(QFile::encodeName(m_program->home(u"pipe"_s)), 0600), 0);
    QFile large(m_program->home(u"large"_s));
    QVERIFY(large.open(QFile::WriteOnly) && large.resize(qint64(257) * 1024 * 1024));
    QVERIFY(QFile::link(u"none.xml"_s, m_program->home(u"link"_s)));
    for (const QStringList &arguments : {QStringList{u"check"_s, name}, {u"check"_s, u"--json"_s, name}}) {
        const Program::Result result = m_program->run(arguments);
        QCOMPARE(result.status, 1);
        QCOMPARE(result.output, QString());
        QCOMPARE(result.errors.count(u'\n'), 1);
        QVERIFY2(result.errors.startsWith(u"voltbok: "_s) && result.errors.contains(reason),
                 qPrintable(result.errors));
    }
}

void CheckCommandTest::aTerminalObeysNothingInAFinding()
{
    const QString file = put(faultless().replace("<Capacity>2200", "<Capacity>\xC2\x9B"
                                                                   "31m\n\nred"));
    const Program::Result result = m_program->run({u"check"_s, file});
    QCOMPARE(result.output, u"unread: battery “A”: the text “31m red” of “Capacity” in line 6\n"_s);
}

void CheckCommandTest::anOutputThatIsFullIsAFailure()
{
    put(faultless().replace("2200", "many"));
    const Program::Result result = m_program->shell(u"\"$0\" check log.xml > /dev/full"_s);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors.count(u'\n'), 1);
}

QTEST_MAIN(CheckCommandTest)
#include "tst_checkcommand.moc"
