// SPDX-License-Identifier: GPL-3.0-or-later
// The command that lists the copies, as a process.
#include "host/safety/folderlock.h"
#include "tests/host/support/copyhome.h"

#include <memory>

#include <sys/stat.h>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class BackupsCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home = std::make_unique<CopyHome>(); }
    void copiesAreListedTheNewestFirst();
    void aTableIsForTheEye();
    void aCopyThatIsNotWholeIsListedWithoutADifference_data();
    void aCopyThatIsNotWholeIsListedWithoutADifference();
    void whatIsNoCopyIsNotListed();
    void copiesOfEarlierVersionsAreListed();
    void copiesOfOneMomentHaveStampsOfTheirOwn();
    void withoutCopiesTheListIsEmpty();
    void theListNeedsNoLockAndWritesNothing();
    void aLogbookThatIsNotWholeSaysWhatHelps();
    void aFolderThatDoesNotExistIsAnError();
    void copiesThatCannotBeListedAreAnError();
    void theSampleHasNoCopiesBeforeItIsOpened();

private:
    Program::Result shell(const QString &line) const { return m_home->program().shell(line); }
    static QString asNobody(const QString &arguments)
    {
        return u"$(test $(id -u) = 0 && echo setpriv --reuid=65534 --regid=65534 --clear-groups) \"$0\" "_s +
               arguments;
    }

    std::unique_ptr<CopyHome> m_home;
};

void BackupsCommandTest::copiesAreListedTheNewestFirst()
{
    const QString old = m_home->copy(CopyHome::before());
    const QString young = m_home->copy(CopyHome::now());
    const QJsonArray list = m_home->json();
    QCOMPARE(list.size(), 2);
    const QJsonObject first = list.at(0).toObject();
    QCOMPARE(first.keys(), (QStringList{u"difference"_s, u"size"_s, u"stamp"_s, u"time"_s, u"whole"_s}));
    QCOMPARE(first.value(u"stamp"_s).toString(), young);
    QCOMPARE(young, u"20260504-120002-000Z"_s);
    QCOMPARE(first.value(u"time"_s).toString(), QDateTime(QDate(2026, 5, 4), QTime(12, 0, 2), Qt::UTC)
                                                    .toLocalTime()
                                                    .toString(u"yyyy-MM-ddTHH:mm:ss"));
    QCOMPARE(first.value(u"size"_s).toInteger(), m_home->bytes().size());
    QCOMPARE(first.value(u"whole"_s), QJsonValue(true));
    QCOMPARE(first.value(u"difference"_s).toString(), u"the same as now"_s);
    QCOMPARE(list.at(1)[u"stamp"_s].toString(), old);
    QCOMPARE(list.at(1)[u"difference"_s].toString(), u"2 flights and 1 battery fewer"_s);
}

void BackupsCommandTest::aTableIsForTheEye()
{
    const QString old = m_home->copy(CopyHome::before());
    const QString broken = m_home->copy("<Voltbok>");
    const Program::Result result = m_home->run({});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    const QStringList lines = result.output.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 3);
    QVERIFY2(lines.at(1).startsWith(broken) && lines.at(1).contains(u"not whole: "_s),
             qPrintable(lines.at(1)));
    QVERIFY2(lines.at(2).startsWith(old) && lines.at(2).endsWith(u"2 flights and 1 battery fewer"_s),
             qPrintable(lines.at(2)));
}

void BackupsCommandTest::aCopyThatIsNotWholeIsListedWithoutADifference_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray whole = CopyHome::document(CopyHome::now());
    QTest::newRow("cut off") << whole.left(whole.size() / 2);
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("something else") << QByteArray("<html/>");
    QTest::newRow("zero bytes") << QByteArray(whole).replace("Skylark", QByteArray("Sky\0ark", 7));
    QTest::newRow("entities") << QByteArray(whole).replace("<!DOCTYPE Voltbok>",
                                                           "<!DOCTYPE Voltbok [<!ENTITY a \"b\">]>");
}

void BackupsCommandTest::aCopyThatIsNotWholeIsListedWithoutADifference()
{
    QFETCH(QByteArray, bytes);
    const QString stamp = m_home->copy(bytes);
    const Program::Result result = m_home->run({u"--json"_s});
    QCOMPARE(result.status, 0);
    const QJsonArray list = QJsonDocument::fromJson(result.output.toUtf8()).array();
    QCOMPARE(list.size(), 1);
    QCOMPARE(list.at(0)[u"stamp"_s].toString(), stamp);
    QCOMPARE(list.at(0)[u"whole"_s], QJsonValue(false));
    QVERIFY(list.at(0)[u"difference"_s].isNull());
    QCOMPARE(list.at(0)[u"size"_s].toInteger(), bytes.size());
}

void BackupsCommandTest::whatIsNoCopyIsNotListed()
{
    const QString pipe = m_home->file(u"log/backups/voltbok-00000009-20260504-120009-000Z.xml"_s);
    QCOMPARE(mkfifo(QFile::encodeName(pipe), 0600), 0);
    QVERIFY(QFile::link(m_home->folder().dataFile(),
                        m_home->file(u"log/backups/voltbok-00000008-20260504-120008-000Z.xml"_s)));
    QVERIFY(QDir().mkpath(m_home->file(u"log/backups/voltbok-00000007-20260504-120007-000Z.xml"_s)));
    m_home->put(u"log/backups/notes.txt"_s, "mine");
    m_home->put(u"log/backups/voltbok-00000006-20269904-120006-000Z.xml"_s, m_home->bytes());
    const QString stamp = m_home->copy(CopyHome::now());
    const QJsonArray list = m_home->json();
    QCOMPARE(list.size(), 1);
    QCOMPARE(list.at(0)[u"stamp"_s].toString(), stamp);
}

void BackupsCommandTest::copiesOfEarlierVersionsAreListed()
{
    m_home->put(u"log/backups/voltbok-20250101-080910-123.xml"_s, CopyHome::document(CopyHome::before()));
    m_home->copy(CopyHome::now());
    const QJsonArray list = m_home->json();
    QCOMPARE(list.size(), 2);
    QCOMPARE(list.at(1)[u"stamp"_s].toString(), u"20250101-080910-123"_s);
    QCOMPARE(list.at(1)[u"time"_s].toString(), u"2025-01-01T08:09:10"_s);
    QCOMPARE(m_home->restore(u"20250101-080910-123"_s).status, 0);
    QCOMPARE(m_home->bytes(), CopyHome::document(CopyHome::before()));
}

void BackupsCommandTest::copiesOfOneMomentHaveStampsOfTheirOwn()
{
    const QByteArray now = m_home->bytes();
    m_home->put(u"log/backups/voltbok-00000004-20260504-120000-000Z.xml"_s, now);
    m_home->put(u"log/backups/voltbok-00000003-kept-20260504-120000-000Z.xml"_s,
                CopyHome::document(CopyHome::before()));
    const QJsonArray list = m_home->json();
    QCOMPARE(list.at(0)[u"stamp"_s].toString(), u"00000004-20260504-120000-000Z"_s);
    QCOMPARE(list.at(1)[u"stamp"_s].toString(), u"00000003-kept-20260504-120000-000Z"_s);
    QCOMPARE(m_home->restore(u"20260504-120000-000Z"_s).status, 1);
    QCOMPARE(m_home->bytes(), now);
    QCOMPARE(m_home->restore(u"00000003-kept-20260504-120000-000Z"_s).status, 0);
    QCOMPARE(m_home->bytes(), CopyHome::document(CopyHome::before()));
}

void BackupsCommandTest::withoutCopiesTheListIsEmpty()
{
    QCOMPARE(m_home->run({u"--json"_s}).output, u"[\n]\n"_s);
    QCOMPARE(m_home->run({}).output, u"There is no copy yet.\n"_s);
    QVERIFY(QDir(m_home->path()).removeRecursively() && QDir().mkpath(m_home->path()));
    QCOMPARE(m_home->run({u"--json"_s}).output, u"[\n]\n"_s);
    QVERIFY(QDir(m_home->path()).isEmpty());
}

void BackupsCommandTest::theListNeedsNoLockAndWritesNothing()
{
    m_home->copy(CopyHome::before());
    FolderLock lock; // of somebody else
    QCOMPARE(lock.take(m_home->folder()).problem, QString());
    const auto before = m_home->snapshot();
    QCOMPARE(m_home->json().size(), 1);
    QCOMPARE(m_home->snapshot(), before);
    for (const QString &folder : {m_home->file(QString()), m_home->path(), m_home->path() + u"/backups"_s})
        QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x5555)));
    const Program::Result result = shell(asNobody(u"--data log backups --json"_s));
    for (const QString &folder : {m_home->file(QString()), m_home->path(), m_home->path() + u"/backups"_s})
        QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x7755)));
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.contains(u"2 flights and 1 battery fewer"_s));
    QCOMPARE(m_home->snapshot(), before);
}

void BackupsCommandTest::aLogbookThatIsNotWholeSaysWhatHelps()
{
    const QString stamp = m_home->copy(CopyHome::before());
    m_home->copy("<Voltbok>");
    m_home->put(u"log/voltbok.xml"_s, m_home->bytes().chopped(20));
    const Program::Result result = m_home->run({u"--json"_s});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors.count(u'\n'), 1);
    QVERIFY2(result.errors.contains(u"“backups restore %1”"_s.arg(stamp)), qPrintable(result.errors));
}

void BackupsCommandTest::aFolderThatDoesNotExistIsAnError()
{
    const auto before = m_home->snapshot();
    for (const QStringList &arguments : {QStringList{u"backups"_s}, {u"backups"_s, u"restore"_s, u"x"_s}}) {
        const Program::Result result =
            m_home->program().run(QStringList{u"--data"_s, m_home->file(u"not"_s)} + arguments);
        QCOMPARE(result.status, 1);
        QCOMPARE(result.output, QString());
        QVERIFY2(result.errors.startsWith(u"voltbok: There is no folder"_s), qPrintable(result.errors));
        // The user's own, before its first use.
        QCOMPARE(m_home->program().run(arguments).status, arguments.size() == 1 ? 0 : 1);
        QVERIFY(!QFileInfo::exists(m_home->file(u"data"_s)));
    }
    QCOMPARE(m_home->snapshot(), before);
}

void BackupsCommandTest::copiesThatCannotBeListedAreAnError()
{
    const QString backups = m_home->path() + u"/backups"_s;
    QVERIFY(QFile::setPermissions(m_home->file(QString()), QFile::Permissions(0x7755)));
    QVERIFY(QFile::setPermissions(backups, QFile::Permissions()));
    const Program::Result result = shell(asNobody(u"--data log backups --json"_s));
    QVERIFY(QFile::setPermissions(backups, QFile::Permissions(0x7755)));
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.contains(u"cannot be listed"_s), qPrintable(result.errors));
}

void BackupsCommandTest::theSampleHasNoCopiesBeforeItIsOpened()
{
    const Program::Result result = m_home->program().run({u"--demo"_s, u"backups"_s, u"--json"_s});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, u"[\n]\n"_s);
    QVERIFY(!QFileInfo::exists(m_home->file(u"data"_s)));
}

QTEST_MAIN(BackupsCommandTest)
#include "tst_backupscommand.moc"
