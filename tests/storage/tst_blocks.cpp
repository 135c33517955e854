// SPDX-License-Identifier: GPL-3.0-or-later
// The reader takes a file in blocks. Where one ends and the next begins makes no difference to what is read.
#include "tests/support/recordlists.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class BlocksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileIsReadAlikeWhereverABlockEnds_data();
    void aFileIsReadAlikeWhereverABlockEnds();
};

void BlocksTest::aFileIsReadAlikeWhereverABlockEnds_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("opening");
    QTest::addColumn<QByteArray>("closing");
    const QByteArray golden = Test::contents(QStringLiteral(GOLDEN));
    QTest::newRow("behind white space") << golden << QByteArray() << QByteArray();
    QTest::newRow("behind a comment") << golden << QByteArray("<!--") << QByteArray("-->");
    QTest::newRow("with other line ends")
        << QByteArray(golden).replace('\n', "\r\n") << QByteArray() << QByteArray();
}

void BlocksTest::aFileIsReadAlikeWhereverABlockEnds()
{
    constexpr qsizetype Block = 4096;
    QFETCH(QByteArray, document);
    QFETCH(QByteArray, opening);
    QFETCH(QByteArray, closing);
    const QByteArray golden = Test::contents(QStringLiteral(GOLDEN));
    const qsizetype root = document.indexOf("<Voltbok>");
    const qsizetype around = opening.size() + closing.size();
    QVERIFY(root > 0);

    QTemporaryDir directory;
    RecordLists catalogue;
    // From where the root's tag begins a block to where the block ends with the document.
    for (qsizetype before = Block - document.size(); before <= Block - root; ++before) {
        const QByteArray filling = opening + QByteArray(before - around, ' ') + closing;
        QVERIFY(Test::write(Test::dataFile(directory.path()), QByteArray(document).insert(root, filling)));
        catalogue.load(directory.path());
        catalogue.save(directory.path());
        if (Test::contents(Test::dataFile(directory.path())) != golden)
            QFAIL(qPrintable(u"with %1 bytes before the root"_s.arg(root + before)));
    }
}

QTEST_MAIN(BlocksTest)
#include "tst_blocks.moc"
