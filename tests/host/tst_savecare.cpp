// SPDX-License-Identifier: GPL-3.0-or-later
// Every way in which a save can fail, what is said about it, and what each button does.
#include "tests/host/support/brokensaves.h"

using namespace Qt::Literals::StringLiterals;
using namespace Faults;

class SaveCareTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aCardThatIsNotSavedIsToldAndSavedByTryAgain_data();
    void aCardThatIsNotSavedIsToldAndSavedByTryAgain();
    void anEditThatIsNotSavedIsTold_data();
    void anEditThatIsNotSavedIsTold();
    void whileTheFileIsCutNothingIsWrittenOnTop_data();
    void whileTheFileIsCutNothingIsWrittenOnTop();
    void theNextSaveThatWorksEndsTheMessage();
    void aRetryThatFailsSaysWhy();
    void theSameProblemIsToldOnceAndAnotherReasonAgain();
    void aFileThatCannotBeWrittenIsToldAtTheStart();
    void whatWasNotReadAtTheStartIsReadAgain();
    void whatIsNeverReadAtTheStartIsToldAndNotOverwritten();
    void whatIsOpenedWholeIsNotReadAgain_data();
    void whatIsOpenedWholeIsNotReadAgain();
    void whatTheDiskDidNotGiveBackIsReadAgain();
    void aFileThatCannotBeReadAnyMoreIsNotOverwritten();
    void copiesThatCannotBeMadeAreToldUntilTheyCan();

private:
    HostWindow &window() { return *m_window; }
    /** Has a window of its own opened that the disk has @p given this file, where it holds another. */
    void openAs(const QByteArray &given, const QByteArray &document, bool readable);

    std::unique_ptr<HostWindow> m_window;
    int m_reloads = 0; // of the window that openAs() makes
    QString m_loss;
    bool m_isEnabled = false;
};

void SaveCareTest::init()
{
    m_window = std::make_unique<HostWindow>();
}

void SaveCareTest::cleanup()
{
    m_window->close();
    QVERIFY(m_window->questions.isDone());
    m_window.reset();
}

void SaveCareTest::aCardThatIsNotSavedIsToldAndSavedByTryAgain_data()
{
    QTest::addColumn<MakeFault>("fault");
    QTest::newRow("a read-only file") << MakeFault(readOnlyFile);
    if (canMakeImmutable())
        QTest::newRow("an immutable file") << MakeFault(immutableFile);
    addCutting();
}

void SaveCareTest::aCardThatIsNotSavedIsToldAndSavedByTryAgain()
{
    QFETCH(MakeFault, fault);
    Fault present = fault(window());
    QVERIFY2(present.use_count() > 0, "the fault cannot be made here");
    window().clickCard(u"Pack B"_s);
    QCoreApplication::processEvents(); // no more than one round of the event loop
    QVERIFY2(window().loss().contains(u"is not saved"_s), qPrintable(window().loss()));
    QVERIFY(window().loss().contains(window().filePath()));
    QVERIFY(window().gui().isEnabled());
    window().settle();
    const QStringList told = window().told;

    window().clickCard(u"Pack A"_s);
    window().settle();
    QCOMPARE(window().told, told); // once, as long as it is the same

    present.reset();
    window().press(u"Try Again"_s);
    window().settle();
    QCOMPARE(window().loss(), QString());
    QCOMPARE(window().questions.told(), QStringList());
    QCOMPARE(window().bytes(), window().care().heldByWindow());
    QCOMPARE(window().bytes().count("<Charged>1<"), 1);
    QCOMPARE(window().bytes().count("<LogData"), 1);
    QCOMPARE(window().copies().constFirst(), window().bytes());
}

void SaveCareTest::anEditThatIsNotSavedIsTold_data()
{
    QTest::addColumn<MakeFault>("fault");
    QTest::addColumn<bool>("losesAll");
    QTest::newRow("a read-only file") << MakeFault(readOnlyFile) << false;
    if (canMakeImmutable())
        QTest::newRow("an immutable file") << MakeFault(immutableFile) << false;
    QTest::newRow("a full disk") << fullDisk(300) << true;
}

void SaveCareTest::anEditThatIsNotSavedIsTold()
{
    QFETCH(MakeFault, fault);
    QFETCH(bool, losesAll);
    Fault present = fault(window());
    QVERIFY2(present.use_count() > 0, "the fault cannot be made here");
    window().addLocation(u"Hill"_s);
    QVERIFY(window().loss().contains(losesAll ? u"less than you have recorded"_s : u"Your last change"_s));
    QCOMPARE(window().gui().isEnabled(), !losesAll); // at once
    QCOMPARE(window().button(u"Restore Last State"_s) != nullptr, losesAll);
    QCOMPARE(window().button(u"Try Again"_s) != nullptr, !losesAll);
    window().settle();
    const QStringList told = window().told;
    window().settle();
    QCOMPARE(window().told, told);

    present.reset();
    window().press(losesAll ? u"Restore Last State"_s : u"Try Again"_s);
    window().settle();
    QCOMPARE(window().loss(), QString());
    QVERIFY(window().gui().isEnabled());
    QCOMPARE(window().gui().batteryList.size(), 2);
    QVERIFY(window().bytes().contains("Pack B"));
    window().addLocation(u"Hill"_s); // "then enter the change again"
    window().settle();
    QVERIFY(window().bytes().contains("Hill"));
    QVERIFY(window().bytes().contains("Skylark"));
    QCOMPARE(window().loss(), QString());
}

void SaveCareTest::whileTheFileIsCutNothingIsWrittenOnTop_data()
{
    QTest::addColumn<MakeFault>("fault");
    addCutting();
}

void SaveCareTest::whileTheFileIsCutNothingIsWrittenOnTop()
{
    QFETCH(MakeFault, fault);
    Fault present = fault(window());
    window().addLocation(u"Hill"_s);
    present.reset(); // an error that was over at once
    const QByteArray cut = window().bytes();
    QVERIFY(!cut.endsWith("</Voltbok>\n"));

    // Everything that would save is out of reach, and what is left of it is pressed in vain.
    const auto buttons = window().gui().findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        QVERIFY2(!button->isEnabled(), qPrintable(button->objectName()));
        QTest::mouseClick(button, Qt::LeftButton);
    }
    window().settle();
    QCOMPARE(window().bytes(), cut);

    window().questions.answer(u"Go Back"_s);
    QVERIFY(!window().window().close());
    QCOMPARE(window().bytes(), cut);
    QVERIFY(window().questions.asked().constFirst().text.contains(u"not saved"_s));
    window().questions.answer(u"Quit Anyway"_s);
    QVERIFY(window().window().close());
    window().close();
    QCOMPARE(window().bytes(), cut);
    QCOMPARE(window().copies().constFirst(), HostWindow::sample());
}

void SaveCareTest::theNextSaveThatWorksEndsTheMessage()
{
    Fault fault = readOnlyFile(window());
    window().addLocation(u"Hill"_s);
    QVERIFY(!window().loss().isEmpty());
    fault.reset();
    window().settle();
    QVERIFY(!window().loss().isEmpty()); // nobody has tried yet
    window().clickCard(u"Pack B"_s);
    window().settle();
    QCOMPARE(window().loss(), QString());
}

void SaveCareTest::aRetryThatFailsSaysWhy()
{
    const Fault fault = readOnlyFile(window());
    window().clickCard(u"Pack B"_s);
    window().settle();
    window().press(u"Try Again"_s);
    window().settle();
    QCOMPARE(window().questions.told(),
             QStringList(u"The logbook still cannot be saved: permission denied."_s));
    QVERIFY(window().loss().contains(u"permission denied"_s));
    window().questions.answer(u"Quit Anyway"_s);
    QVERIFY(window().window().close());
}

void SaveCareTest::theSameProblemIsToldOnceAndAnotherReasonAgain()
{
    Fault fault = readOnlyFile(window());
    for (int click = 0; click < 5; ++click) {
        window().clickCard(u"Pack B"_s);
        window().settle();
    }
    QCOMPARE(window().told.filter(u"is not saved"_s).count(), 1);
    fault.reset();
    fault = fullDisk(100)(window());
    window().clickCard(u"Pack B"_s);
    window().settle();
    QCOMPARE(window().told.filter(u"is not saved"_s).count(), 2);
    fault.reset();
    window().press(u"Try Again"_s);
    fault = readOnlyFile(window());
    window().clickCard(u"Pack B"_s);
    QCoreApplication::processEvents();
    QCOMPARE(window().told.filter(u"is not saved"_s).count(), 3); // it was over
    fault.reset();
    window().press(u"Try Again"_s);
}

void SaveCareTest::aFileThatCannotBeWrittenIsToldAtTheStart()
{
    window().close();
    Fault fault = readOnlyFile(window());
    window().restart();
    QVERIFY(window().loss().contains(u"Nothing can be saved"_s));
    QVERIFY(window().gui().isEnabled());
    window().press(u"Try Again"_s);
    QCOMPARE(window().questions.told().size(), 1);
    fault.reset();
    window().press(u"Try Again"_s);
    QCOMPARE(window().loss(), QString());
    QVERIFY(window().window().close());
    QCOMPARE(window().bytes(), HostWindow::sample());
}

void SaveCareTest::openAs(const QByteArray &given, const QByteArray &document, bool readable)
{
    window().close(); // and its care with it
    VoltbokGui gui;
    window().put(given);
    gui.changeStoragePath(window().path());
    window().put(document);
    m_reloads = 0;
    const auto reload = [&] {
        ++m_reloads;
        if (readable)
            gui.changeStoragePath(window().path());
    };
    Host::MessageBar messages;
    const Host::SaveCare care(Host::StorageFolder(window().path()), {&gui, [] {}, reload}, messages,
                              window().questions);
    m_loss = messages.m_texts.value(u"saving"_s);
    m_isEnabled = gui.isEnabled();
}

void SaveCareTest::whatWasNotReadAtTheStartIsReadAgain()
{
    openAs({}, HostWindow::sample(), true);
    QCOMPARE(m_reloads, 1);
    QCOMPARE(m_loss, QString());
    QVERIFY(m_isEnabled);
    QCOMPARE(window().bytes(), HostWindow::sample());
}

void SaveCareTest::whatIsNeverReadAtTheStartIsToldAndNotOverwritten()
{
    openAs({}, HostWindow::sample(), false);
    QCOMPARE(m_reloads, 1);
    QVERIFY2(m_loss.contains(u"it cannot be read back"_s), qPrintable(m_loss));
    QVERIFY(!m_isEnabled);
    QCOMPARE(window().bytes(), HostWindow::sample());
}

void SaveCareTest::whatIsOpenedWholeIsNotReadAgain_data()
{
    const QByteArray sample = HostWindow::sample();
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("as it is saved") << sample;
    QTest::newRow("in another spelling") << QByteArray(sample).replace("    ", "\t");
    QTest::newRow("empty by now") << QByteArray(); // the window holds more than a reload would give it
}

void SaveCareTest::whatIsOpenedWholeIsNotReadAgain()
{
    QFETCH(QByteArray, document);
    openAs(HostWindow::sample(), document, true);
    QCOMPARE(m_reloads, 0);
    QCOMPARE(m_loss, QString());
    QVERIFY(m_isEnabled);
    QCOMPARE(window().bytes(), document);
}

void SaveCareTest::whatTheDiskDidNotGiveBackIsReadAgain()
{
    // Gone from when the locations are read again until the overview is built.
    const QString path = window().filePath();
    const QString aside = window().place() + u"/aside"_s;
    bool gone = false;
    const auto hide =
        connect(window().ui().cb_log_location->model(), &QAbstractItemModel::rowsInserted, this, [&] {
            if (!gone && window().bytes().contains("Hill"))
                gone = QFile::rename(path, aside);
        });
    class Back : public QObject
    {
    public:
        std::function<void()> run;
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::ChildAdded)
                run();
            return false;
        }
    } back;
    back.run = [&] { QFile::rename(aside, path); };
    window().ui().scrollArea->viewport()->installEventFilter(&back);
    window().addLocation(u"Hill"_s);
    QVERIFY(gone);
    QCOMPARE(window().gui().batteryList.size(), 2);
    QCOMPARE(window().gui().modelList.size(), 2);
    window().settle();
    QCOMPARE(window().loss(), QString());
    window().clickCard(u"Pack B"_s);
    QVERIFY(window().bytes().contains("Skylark"));
}

void SaveCareTest::aFileThatCannotBeReadAnyMoreIsNotOverwritten()
{
    Fault fault = std::make_shared<Refusal>(window().filePath(), 0222);
    window().addLocation(u"Hill"_s);
    QCOMPARE(window().gui().batteryList.size(), 2);
    QVERIFY(!window().gui().isEnabled());
    QVERIFY2(window().others().contains(u"permission denied"_s), qPrintable(window().others()));
    fault.reset();
    QCOMPARE(window().bytes(), HostWindow::sample());
    QTRY_COMPARE(window().others(), QString());
    QVERIFY(window().gui().isEnabled());
    LogbookWindow::click(window().ui().pb_add_location); // what was typed is still there
    QVERIFY(window().bytes().contains("Hill"));
}

void SaveCareTest::copiesThatCannotBeMadeAreToldUntilTheyCan()
{
    const Host::StorageFolder folder(window().path());
    QVERIFY(QDir(folder.backups()).removeRecursively());
    QFile inTheWay(folder.backups().path());
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    for (int click = 0; click < 4; ++click) {
        window().clickCard(u"Pack B"_s);
        window().settle();
    }
    QVERIFY(window().message(u"copies"_s).contains(folder.backups().path()));
    QCOMPARE(window().told.count(), 1);
    QCOMPARE(window().loss(), QString());
    QVERIFY(inTheWay.remove());
    window().clickCard(u"Pack B"_s);
    window().settle();
    QCOMPARE(window().message(u"copies"_s), QString());
}

QTEST_MAIN(SaveCareTest)
#include "tst_savecare.moc"
