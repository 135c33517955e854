// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/voltbokgui.h"
#include "host/data/cataloguefile.h"
#include "tests/host/support/snapshot.h"
#include "tests/support/brokendisk.h"
#include "tests/support/files.h"

#include <QFileInfo>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

/** While it lives, temporary files belong elsewhere. */
class TemporaryPlace
{
    Q_DISABLE_COPY_MOVE(TemporaryPlace)

public:
    explicit TemporaryPlace(const QString &path)
        : m_before(qgetenv("TMPDIR"))
    {
        qputenv("TMPDIR", QFile::encodeName(path));
    }
    ~TemporaryPlace() { qputenv("TMPDIR", m_before); }

private:
    QByteArray m_before;
};

} // namespace

class CatalogueFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void aFileOfTheLibraryComesOutAsItWas_data();
    void aFileOfTheLibraryComesOutAsItWas();
    void anEmptyLogbookIsWhatTheLibraryMakesOfNothing();
    void nothingIsLeftInTheTemporaryFolder();
    void aScratchFolderThatCannotBeMadeIsAReason();
    void aDiskThatIsFullIsAReasonAndNoShorterLogbook();
    void whatTheWindowHoldsIsReadWithoutTouchingItsFile();
    void theWindowGoesOnSavingInItsFolder();
    void aScratchFolderThatCannotBeMadeLeavesTheWindowInItsFolder();

private:
    QString file(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void CatalogueFileTest::aFileOfTheLibraryComesOutAsItWas_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("sample") << Test::sample();
    QTest::newRow("golden") << Test::contents(QStringLiteral(GOLDEN));
}

void CatalogueFileTest::aFileOfTheLibraryComesOutAsItWas()
{
    QFETCH(QByteArray, document);
    const CatalogueFile::Saved saved = CatalogueFile::loadAndSave(document);
    QCOMPARE(saved.problem, QString());
    QVERIFY(saved.document == document);
}

void CatalogueFileTest::anEmptyLogbookIsWhatTheLibraryMakesOfNothing()
{
    QCOMPARE(CatalogueFile::loadAndSave("hello").document, CatalogueFile::emptyDocument());
    QCOMPARE(CatalogueFile::loadAndSave(CatalogueFile::emptyDocument()).document,
             CatalogueFile::emptyDocument());
}

void CatalogueFileTest::nothingIsLeftInTheTemporaryFolder()
{
    const TemporaryPlace place(m_folder->path());
    QVERIFY(!CatalogueFile::loadAndSave(Test::sample()).document.isEmpty());
    QVERIFY(Test::snapshot(m_folder->path()).isEmpty());
}

void CatalogueFileTest::aScratchFolderThatCannotBeMadeIsAReason()
{
    const TemporaryPlace place(m_folder->path());
    const QByteArray document = Test::sample();
    const Permissions closed(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner);
    QVERIFY(closed.works());
    const CatalogueFile::Saved saved = CatalogueFile::loadAndSave(document);
    QCOMPARE(saved.problem, u"Permission denied"_s);
    QCOMPARE(saved.document, QByteArray());
}

void CatalogueFileTest::aDiskThatIsFullIsAReasonAndNoShorterLogbook()
{
    // The save is longer than what was loaded: there is room for one only.
    const QByteArray document = Test::sample().replace("\n", "").replace("    ", "");
    const QByteArray saved = CatalogueFile::loadAndSave(document).document;
    QVERIFY(saved.size() > document.size());
    for (const qsizetype room : {document.size() / 2, document.size(), saved.size() - 1}) {
        const FullDisk disk(static_cast<rlim_t>(room));
        QVERIFY(disk.works());
        const CatalogueFile::Saved cut = CatalogueFile::loadAndSave(document);
        QVERIFY(!cut.problem.isEmpty());
        QCOMPARE(cut.document, QByteArray());
    }
    const FullDisk disk(static_cast<rlim_t>(saved.size()));
    QCOMPARE(CatalogueFile::loadAndSave(document).document, saved);
}

void CatalogueFileTest::whatTheWindowHoldsIsReadWithoutTouchingItsFile()
{
    const QString path = file(u"voltbok.xml"_s);
    const QByteArray document = Test::sample() + "<!-- of hers -->\n";
    QVERIFY(Test::write(path, document));
    const QDateTime before = QFileInfo(path).lastModified();
    VoltbokGui window;
    window.changeStoragePath(m_folder->path());
    QTest::qWait(20); // the file's clock goes on
    const CatalogueFile::Saved held = CatalogueFile::heldBy(window, m_folder->path());
    QCOMPARE(held.problem, QString());
    QVERIFY(held.document == Test::sample());
    QVERIFY(Test::contents(path) == document);
    QCOMPARE(QFileInfo(path).lastModified(), before);
    QCOMPARE(Test::snapshot(m_folder->path()).size(), 1);
}

void CatalogueFileTest::theWindowGoesOnSavingInItsFolder()
{
    QVERIFY(Test::write(file(u"voltbok.xml"_s), Test::sample() + "\n"));
    VoltbokGui window;
    window.changeStoragePath(m_folder->path());
    QVERIFY(!CatalogueFile::heldBy(window, m_folder->path()).document.isEmpty());
    QVERIFY(QMetaObject::invokeMethod(&window, "writeDataWithDataprocessor"));
    QVERIFY(Test::contents(file(u"voltbok.xml"_s)) == Test::sample());
}

void CatalogueFileTest::aScratchFolderThatCannotBeMadeLeavesTheWindowInItsFolder()
{
    QVERIFY(Test::write(file(u"voltbok.xml"_s), Test::sample() + "\n"));
    VoltbokGui window;
    window.changeStoragePath(m_folder->path());
    {
        const TemporaryPlace place(m_folder->path());
        const Permissions closed(m_folder->path(), QFile::ReadOwner | QFile::ExeOwner);
        const CatalogueFile::Saved held = CatalogueFile::heldBy(window, m_folder->path());
        QCOMPARE(held.problem, u"Permission denied"_s);
        QCOMPARE(held.document, QByteArray());
    }
    QVERIFY(Test::contents(file(u"voltbok.xml"_s)) == Test::sample() + "\n");
    QVERIFY(QMetaObject::invokeMethod(&window, "writeDataWithDataprocessor"));
    QVERIFY(Test::contents(file(u"voltbok.xml"_s)) == Test::sample());
}

QTEST_MAIN(CatalogueFileTest)
#include "tst_cataloguefile.moc"
