// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/plugin/testplugin.h"
#include "tests/support/files.h"

#include <QApplication>
#include <QLocale>
#include <QProcess>
#include <QResource>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/** Counts the language changes the application is told of. */
class LanguageWatcher : public QObject
{
public:
    LanguageWatcher() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == qApp && event->type() == QEvent::LanguageChange)
            ++changes;
        return false;
    }

    int changes = 0;
};

bool run(const char *tool, const QStringList &arguments)
{
    return QProcess::execute(QString::fromLocal8Bit(tool), arguments) == 0;
}

/** Writes DIRECTORY/NAME_LANGUAGE.qm, which translates "Hello" in the context "Test". */
bool makeTranslation(const QString &directory, const QString &file, const QString &language,
                     const QString &hello)
{
    const QString base = directory + u'/' + file + u'_' + language;
    const QString source =
        u"<!DOCTYPE TS><TS version=\"2.1\" language=\"%1\"><context><name>Test</name><message>"
        u"<source>Hello</source><translation>%2</translation></message></context></TS>"_s;
    return Test::write(base + u".ts"_s, source.arg(language, hello).toUtf8()) &&
           run(LRELEASE, {u"-silent"_s, base + u".ts"_s, u"-qm"_s, base + u".qm"_s});
}

QString hello()
{
    return QCoreApplication::translate("Test", "Hello");
}

/** The host's resources for the time of a test: ":/Resources/Translations/rotavexplugin_de.qm" and one more.
 */
class HostResources
{
public:
    HostResources()
    {
        const QString collection = directory.filePath(u"host.qrc"_s);
        registered = makeTranslation(directory.path(), u"rotavexplugin"_s, u"de"_s, u"Hallo vom Host"_s) &&
                     makeTranslation(directory.path(), u"own"_s, u"de"_s, u"never found"_s) &&
                     Test::write(collection, "<RCC><qresource prefix=\"/Resources/Translations\">"
                                             "<file>rotavexplugin_de.qm</file><file>own_de.qm</file>"
                                             "</qresource></RCC>") &&
                     run(RCC, {u"--binary"_s, collection, u"-o"_s, resource()}) &&
                     QResource::registerResource(resource());
    }
    ~HostResources() { QResource::unregisterResource(resource()); }
    Q_DISABLE_COPY_MOVE(HostResources)

    bool registered = false;

private:
    QString resource() const { return directory.filePath(u"host.rcc"_s); }

    QTemporaryDir directory;
};

const QLocale german(QLocale::German, QLocale::Germany);
const QLocale french(QLocale::French, QLocale::France);

} // namespace

class PluginLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aNewPluginHasOneEmptyTranslator();
    void aTranslatorIsRegisteredOnce();
    void translatorsGoWithThePlugin();
    void constructionLoadsNoLanguage();
    void switchingLoadsTheTranslationOfTheLanguage();
    void everyRegisteredTranslatorIsSwitched();
    void switchingTwiceTellsTheApplicationOfEveryChange();
    void withoutADirectoryNothingIsSwitched();
    void withoutATranslatorNothingIsSwitched();
    void aLanguageWithoutFilesLeavesTheSourceTexts();
    void theHostsResourcesStandInForAMissingFile();
    void theFallbackIsTheBaseFileWhateverTheTranslator();
    void thePluginsOwnFileWinsOverTheResources();

private:
    std::unique_ptr<TestPlugin> makePlugin() const { return TestPlugin::make(files->path()); }

    std::unique_ptr<QTemporaryDir> files;
};

void PluginLanguageTest::init()
{
    files = std::make_unique<QTemporaryDir>();
    QVERIFY(files->isValid());
}

void PluginLanguageTest::cleanup()
{
    QCOMPARE(hello(), u"Hello"_s);
}

void PluginLanguageTest::aNewPluginHasOneEmptyTranslator()
{
    const auto plugin = makePlugin();
    QCOMPARE(plugin->translators.keys(), QStringList(u"rotavexplugin"_s));
    const QTranslator *translator = plugin->translators.first();
    QVERIFY(translator->isEmpty());
    QCOMPARE(translator->parent(), plugin.get());
}

void PluginLanguageTest::aTranslatorIsRegisteredOnce()
{
    const auto plugin = makePlugin();
    plugin->registerTranslator(u"own"_s);
    const QTranslator *first = plugin->translators.value(u"own"_s);
    plugin->registerTranslator(u"own"_s);
    plugin->registerTranslator(u"rotavexplugin"_s);
    QCOMPARE(plugin->translators.value(u"own"_s), first);
    QCOMPARE(plugin->translators.keys(), QStringList({u"own"_s, u"rotavexplugin"_s}));
    QCOMPARE(plugin->findChildren<QTranslator *>().size(), 2);

    plugin->registerTranslator(u"Own"_s);
    QCOMPARE(plugin->translators.size(), 3);
}

void PluginLanguageTest::translatorsGoWithThePlugin()
{
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, u"de"_s, u"Hallo"_s));
    auto plugin = makePlugin();
    plugin->switchLanguage(german);
    QCOMPARE(hello(), u"Hallo"_s);
    plugin.reset();
    QCOMPARE(hello(), u"Hello"_s);
}

void PluginLanguageTest::constructionLoadsNoLanguage()
{
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, QLocale().name(), u"Moin"_s));
    LanguageWatcher watcher;
    const auto plugin = makePlugin();
    plugin->registerTranslator(u"own"_s);
    QCOMPARE(watcher.changes, 0);
    QCOMPARE(hello(), u"Hello"_s);
}

void PluginLanguageTest::switchingLoadsTheTranslationOfTheLanguage()
{
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, u"de"_s, u"Hallo"_s));
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, u"fr_FR"_s, u"Bonjour"_s));
    const auto plugin = makePlugin();
    plugin->switchLanguage(german);
    QCOMPARE(hello(), u"Hallo"_s);
    plugin->switchLanguage(french);
    QCOMPARE(hello(), u"Bonjour"_s);
    plugin->switchLanguage(german);
    QCOMPARE(hello(), u"Hallo"_s);
}

void PluginLanguageTest::everyRegisteredTranslatorIsSwitched()
{
    // Installed in ascending order of their keys, capitals first: the application asks the last one installed
    // first.
    QVERIFY(makeTranslation(files->path(), u"Zebra"_s, u"de"_s, u"Z"_s));
    QVERIFY(makeTranslation(files->path(), u"apple"_s, u"de"_s, u"a"_s));
    QVERIFY(makeTranslation(files->path(), u"apple"_s, u"fr"_s, u"une pomme"_s));
    const auto plugin = makePlugin();
    plugin->registerTranslator(u"apple"_s);
    plugin->registerTranslator(u"Zebra"_s);
    plugin->switchLanguage(german);
    QCOMPARE(hello(), u"a"_s);
    QVERIFY(!plugin->translators.value(u"Zebra"_s)->isEmpty());
    plugin->switchLanguage(french);
    QCOMPARE(hello(), u"une pomme"_s);
    QVERIFY(plugin->translators.value(u"Zebra"_s)->isEmpty());
}

void PluginLanguageTest::switchingTwiceTellsTheApplicationOfEveryChange()
{
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, u"de"_s, u"Hallo"_s));
    const auto plugin = makePlugin();
    LanguageWatcher watcher;
    plugin->switchLanguage(german);
    QCOMPARE(watcher.changes, 1); // installed
    plugin->switchLanguage(german);
    QCOMPARE(watcher.changes, 3); // removed and installed again
    QCOMPARE(hello(), u"Hallo"_s);
}

void PluginLanguageTest::withoutADirectoryNothingIsSwitched()
{
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, u"de"_s, u"Hallo"_s));
    const auto plugin = TestPlugin::make(QString());
    QTranslator *translator = plugin->translators.first();
    QVERIFY(translator->load(files->filePath(u"rotavexplugin_de.qm"_s)));
    QCoreApplication::installTranslator(translator);

    LanguageWatcher watcher;
    plugin->switchLanguage(french);
    QCOMPARE(watcher.changes, 0);
    QCOMPARE(hello(), u"Hallo"_s);
}

void PluginLanguageTest::withoutATranslatorNothingIsSwitched()
{
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, u"de"_s, u"Hallo"_s));
    const auto plugin = makePlugin();
    qDeleteAll(std::exchange(plugin->translators, {}));
    LanguageWatcher watcher;
    plugin->switchLanguage(german);
    QCOMPARE(watcher.changes, 0);
}

void PluginLanguageTest::aLanguageWithoutFilesLeavesTheSourceTexts()
{
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, u"de"_s, u"Hallo"_s));
    const auto plugin = makePlugin();
    plugin->switchLanguage(german);
    QCOMPARE(hello(), u"Hallo"_s);

    LanguageWatcher watcher;
    plugin->switchLanguage(french);
    QCOMPARE(watcher.changes, 1);
    QCOMPARE(hello(), u"Hello"_s);
    QVERIFY(!QCoreApplication::removeTranslator(plugin->translators.first()));
}

void PluginLanguageTest::theHostsResourcesStandInForAMissingFile()
{
    const HostResources resources;
    QVERIFY(resources.registered);
    const auto plugin = makePlugin();
    plugin->switchLanguage(german);
    QCOMPARE(hello(), u"Hallo vom Host"_s);
    plugin->switchLanguage(french);
    QCOMPARE(hello(), u"Hello"_s);
}

void PluginLanguageTest::theFallbackIsTheBaseFileWhateverTheTranslator()
{
    const HostResources resources;
    const auto plugin = makePlugin();
    plugin->registerTranslator(u"own"_s);
    plugin->switchLanguage(german);
    QCOMPARE(plugin->translators.value(u"own"_s)->translate("Test", "Hello"), u"Hallo vom Host"_s);
    QCOMPARE(hello(), u"Hallo vom Host"_s);
}

void PluginLanguageTest::thePluginsOwnFileWinsOverTheResources()
{
    const HostResources resources;
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, u"de"_s, u"Hallo"_s));
    const auto plugin = makePlugin();
    plugin->switchLanguage(german);
    QCOMPARE(hello(), u"Hallo"_s);
}

QTEST_MAIN(PluginLanguageTest)
#include "tst_pluginlanguage.moc"
