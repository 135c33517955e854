// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "storage/dataprocessor.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {
QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace

class HostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void helpAndVersionNeedNoDisplay_data();
    void helpAndVersionNeedNoDisplay();
    void aMistakeIsOneLineOnStandardErrorAndStatus1_data();
    void aMistakeIsOneLineOnStandardErrorAndStatus1();
    void withoutADisplayItSaysWhatToDo();
    void aScreenshotShowsTheWindow();
    void aScreenshotMakesNoFolderAndWritesNoData();
    void theDemoIsCopiedToAFolderOfItsOwnAndKept();
    void theDemoFileIsInTheBytesOfTheLibrary();
    void theDemoIsGenerous();
    void aSecondInstanceIsRefusedAndTheHolderNamed();
    void theLockOfAKilledInstanceIsTakenOver();
    void aBrokenFileIsNeitherLoadedNorOverwritten();

private:
    struct Result
    {
        int status;
        QString output;
        QString errors;
    };

    std::unique_ptr<QProcess> start(const QStringList &arguments, bool display = true) const;
    Result run(const QStringList &arguments, bool display = true) const;
    QString file(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void HostTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

std::unique_ptr<QProcess> HostTest::start(const QStringList &arguments, bool display) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), file(QStringLiteral("home")));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_folder->path());
    environment.insert(QStringLiteral("TMPDIR"), m_folder->path());
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1StringView(variable));
    if (display)
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->start(QStringLiteral(HOST), arguments);
    return process;
}

HostTest::Result HostTest::run(const QStringList &arguments, bool display) const
{
    const auto process = start(arguments, display);
    if (!process->waitForFinished() || process->exitStatus() != QProcess::NormalExit)
        return {-1, {}, process->errorString()};
    return {process->exitCode(), QString::fromUtf8(process->readAllStandardOutput()),
            QString::fromUtf8(process->readAllStandardError())};
}

void HostTest::helpAndVersionNeedNoDisplay_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("expected");

    QTest::newRow("--version") << "--version"
                               << "Voltbok 1";
    QTest::newRow("-v") << "-v"
                        << "Voltbok 1";
    QTest::newRow("--help") << "--help"
                            << "--reset-demo";
    QTest::newRow("-h") << "-h"
                        << "--screenshot";
}

void HostTest::helpAndVersionNeedNoDisplay()
{
    QFETCH(QString, option);
    QFETCH(QString, expected);
    const Result result = run({option}, false);
    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.contains(expected), qPrintable(result.output));
    QCOMPARE(result.errors, QString());
}

void HostTest::aMistakeIsOneLineOnStandardErrorAndStatus1_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("expected");

    QTest::newRow("unknown option") << QStringList{"--frobnicate"} << "frobnicate";
    QTest::newRow("extra argument") << QStringList{"flights"} << "flights";
    QTest::newRow("missing value") << QStringList{"--data"} << "data";
    QTest::newRow("empty value") << QStringList{"--data", ""} << "--data";
    QTest::newRow("a file as the folder") << QStringList{"--data", HOST} << "not a directory";
    QTest::newRow("a folder below a file") << QStringList{"--data", HOST "/below"} << "not a directory";
    QTest::newRow("demo and data") << QStringList{"--demo", "--data", "."} << "--data";
    QTest::newRow("picture that cannot be written")
        << QStringList{"--demo", "--screenshot", "/nowhere/window.png"} << "/nowhere/window.png";
}

void HostTest::aMistakeIsOneLineOnStandardErrorAndStatus1()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, expected);
    const Result result = run(arguments, false);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.startsWith(QStringLiteral("voltbok: ")), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(expected), qPrintable(result.errors));
    QCOMPARE(result.errors.indexOf(u'\n'), result.errors.size() - 1);
}

void HostTest::withoutADisplayItSaysWhatToDo()
{
#ifndef Q_OS_LINUX
    QVERIFY2(true, "only a system whose display may be missing has something to say");
#else
    const Result result = run({}, false);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(QStringLiteral("--screenshot")), qPrintable(result.errors));
    QCOMPARE(result.errors.indexOf(u'\n'), result.errors.size() - 1);
#endif
}

void HostTest::aScreenshotShowsTheWindow()
{
    const QString picture = file(QStringLiteral("window.png"));
    const Result result = run({QStringLiteral("--demo"), QStringLiteral("--screenshot"), picture}, false);
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors, QString());
    const QImage image(picture);
    QCOMPARE(image.size(), QSize(350, 531));
    int green = 0; // the buttons of charged batteries
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            green += colour.green() > 200 && colour.red() < 150 && colour.blue() < 150 ? 1 : 0;
        }
    }
    QVERIFY2(green > 2000, qPrintable(QString::number(green)));
}

void HostTest::aScreenshotMakesNoFolderAndWritesNoData()
{
    const QString folder = file(QStringLiteral("new"));
    const QString picture = file(QStringLiteral("window.png"));
    QCOMPARE(run({QStringLiteral("--data"), folder, QStringLiteral("--screenshot"), picture}, false).status,
             0);
    QVERIFY(QFile::exists(picture));
    QVERIFY(!QDir(folder).exists());
}

void HostTest::theDemoIsCopiedToAFolderOfItsOwnAndKept()
{
    const QStringList draw{QStringLiteral("--screenshot"), file(QStringLiteral("window.png"))};
    const QString copy = file(QStringLiteral("home/Voltbok-demo/voltbok.xml"));
    QCOMPARE(run(QStringList{QStringLiteral("--demo")} + draw, false).status, 0);
    QCOMPARE(read(copy), read(QStringLiteral(DEMO)));

    const QByteArray changed("<Voltbok/>");
    QFile edited(copy);
    QVERIFY(edited.open(QFile::WriteOnly));
    edited.write(changed);
    edited.close();
    QCOMPARE(run(QStringList{QStringLiteral("--demo")} + draw, false).status, 0);
    QCOMPARE(read(copy), changed);
    QCOMPARE(run(QStringList{QStringLiteral("--reset-demo")} + draw, false).status, 0);
    QCOMPARE(read(copy), read(QStringLiteral(DEMO)));
}

void HostTest::theDemoFileIsInTheBytesOfTheLibrary()
{
    QVERIFY(QFile::copy(QStringLiteral(DEMO), file(QStringLiteral("voltbok.xml"))));
    DataProcessor processor(nullptr);
    processor.setBasePath(m_folder->path());
    QList<QString> locations;
    QList<ModelWidget *> models;
    QList<BatteryWidget *> batteries;
    QVERIFY(processor.getLocationsFromData(locations));
    processor.getModelWidgetsFromData(models);
    processor.getBatteryWidgetsFromData(batteries);
    processor.addData(batteries, models, locations);
    QCOMPARE(read(file(QStringLiteral("voltbok.xml"))), read(QStringLiteral(DEMO)));
    qDeleteAll(batteries);
    qDeleteAll(models);
}

void HostTest::theDemoIsGenerous()
{
    const QByteArray demo = read(QStringLiteral(DEMO));
    QVERIFY(demo.count("<Location ") >= 6);
    QVERIFY(demo.count("<Capacity>") >= 12);
    QVERIFY(demo.count("<Type>") >= 4);
    QVERIFY(demo.count("<Cycle ") >= 400);
    QVERIFY(demo.count("<LogData ") >= 300);
    QVERIFY(demo.contains("<Charged>1<") && demo.contains("<Charged>0<"));
}

void HostTest::aSecondInstanceIsRefusedAndTheHolderNamed()
{
    const QStringList arguments{QStringLiteral("--data"), m_folder->path()};
    const auto first = start(arguments);
    QTRY_VERIFY(QFile::exists(file(QStringLiteral("voltbok.lock"))));
    const Result second = run(arguments);
    QCOMPARE(second.status, 1);
    QVERIFY2(second.errors.contains(QString::number(first->processId())), qPrintable(second.errors));
    QCOMPARE(second.errors.indexOf(u'\n'), second.errors.size() - 1);
    first->kill();
    QVERIFY(first->waitForFinished());
}

void HostTest::theLockOfAKilledInstanceIsTakenOver()
{
    const auto first = start({QStringLiteral("--data"), m_folder->path()});
    QTRY_VERIFY(QFile::exists(file(QStringLiteral("voltbok.lock"))));
    first->kill();
    QVERIFY(first->waitForFinished());
    QVERIFY(QFile::exists(file(QStringLiteral("voltbok.lock"))));
    const QString picture = file(QStringLiteral("window.png"));
    QCOMPARE(
        run({QStringLiteral("--data"), m_folder->path(), QStringLiteral("--screenshot"), picture}).status, 0);
}

void HostTest::aBrokenFileIsNeitherLoadedNorOverwritten()
{
    const QByteArray broken = read(QStringLiteral(DEMO)).left(5000);
    QFile data(file(QStringLiteral("voltbok.xml")));
    QVERIFY(data.open(QFile::WriteOnly));
    data.write(broken);
    data.close();
    const Result result = run({QStringLiteral("--data"), m_folder->path()});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(QStringLiteral("damaged")), qPrintable(result.errors));
    QCOMPARE(result.errors.indexOf(u'\n'), result.errors.size() - 1);
    QCOMPARE(read(file(QStringLiteral("voltbok.xml"))), broken);
}

QTEST_MAIN(HostTest)
#include "tst_host.moc"
