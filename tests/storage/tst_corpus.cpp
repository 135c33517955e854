// SPDX-License-Identifier: GPL-3.0-or-later
// Every file that the fuzzer starts from or once found a fault with, without the fuzzer.
#include "fuzz/roundtrip.h"
#include "tests/support/warnings.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class CorpusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void whatIsLoadedIsSavedAndLoadedUnchanged_data();
    void whatIsLoadedIsSavedAndLoadedUnchanged();

private:
    QStringList m_files;
};

void CorpusTest::initTestCase()
{
    const QDir fuzz(QStringLiteral(FUZZ_DIR));
    for (const char *name : {"corpus", "regressions"}) {
        const QDir folder(fuzz.filePath(QLatin1StringView(name)));
        QVERIFY2(!folder.isEmpty(), qPrintable(folder.path()));
        QDirIterator files(folder.path(), QDir::Files);
        while (files.hasNext())
            m_files.append(fuzz.relativeFilePath(files.next()));
    }
}

void CorpusTest::whatIsLoadedIsSavedAndLoadedUnchanged_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &path : std::as_const(m_files))
        QTest::newRow(qPrintable(path)) << QStringLiteral(FUZZ_DIR "/") + path;
}

void CorpusTest::whatIsLoadedIsSavedAndLoadedUnchanged()
{
    Test::failOnWarnings();
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTemporaryDir folder;
    QCOMPARE(roundTripFault(file.readAll(), folder.path()), QString());
}

QTEST_MAIN(CorpusTest)
#include "tst_corpus.moc"
