// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin/rotavexplugin.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QMetaMethod>
#include <QPixmap>
#include <QProcess>
#include <QResource>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

// What a host may find in the store before main(): the initialiser runs when the program is loaded.
static const bool storeExistedBeforeMain =
    RotavexPlugin::rotavexSettings != nullptr && QCoreApplication::instance() == nullptr;

namespace {

class Plugin : public RotavexPlugin
{
public:
    using RotavexPlugin::RotavexPlugin;
    void discoverDevices(bool flag) override { discoveries.append(flag); }

    QList<bool> discoveries;
};

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

bool write(const QString &fileName, const QString &content)
{
    QFile file(fileName);
    return file.open(QFile::WriteOnly) && file.write(content.toUtf8()) > 0;
}

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
    return write(base + u".ts"_s, source.arg(language, hello)) &&
           run(LRELEASE, {u"-silent"_s, base + u".ts"_s, u"-qm"_s, base + u".qm"_s});
}

QString hello()
{
    return QCoreApplication::translate("Test", "Hello");
}

const QLocale german(QLocale::German, QLocale::Germany);
const QLocale french(QLocale::French, QLocale::France);

} // namespace

class RotavexPluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void theSettingsStoreExistsBeforeAnyApplication();
    void theSettingsStoreIsTheHosts();
    void theMethodTableHasItsFixedOrder();
    void itAnswersCastsToItsName();
    void itIsAbstractUntilDiscoveryIsImplemented();
    void itKeepsItsIdentity();
    void theIconIsHandedOutByReference();
    void theOrchestratorIsPassedThrough();
    void devicesArePassedThroughTheSignals();
    void devicesArePassedThroughQueuedConnections();
    void discoveryReachesTheDerivedPlugin();

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

    void aGroupBecomesDynamicProperties();
    void aDeclaredPropertyIsSetToo();
    void aMissingGroupSetsNothing();
    void subgroupsAreNotLoaded();
    void latin1KeysNameTheProperty();
    void aSavedSettingIsLoadedAtOnce();
    void aSavedSettingIsOnDiskAtOnce();
    void settingsLieUnderThePluginsName();
    void settingsLeaveTheGroupAsItWas();

private:
    std::unique_ptr<Plugin> makePlugin(const QString &directory) const
    {
        return std::make_unique<Plugin>(u"logbook"_s, QIcon(), u"A logbook"_s, u"Nobody"_s, directory);
    }
    std::unique_ptr<Plugin> makePlugin() const { return makePlugin(files->path()); }

    QTemporaryDir store;
    std::unique_ptr<QTemporaryDir> files;
};

void RotavexPluginTest::initTestCase()
{
    QVERIFY(store.isValid());
    // The store of a developer is never touched: this one was made for the home that the test runs in.
    QVERIFY2(RotavexPlugin::rotavexSettings->fileName().startsWith(QDir::homePath()),
             qPrintable(RotavexPlugin::rotavexSettings->fileName()));
}

void RotavexPluginTest::init()
{
    files = std::make_unique<QTemporaryDir>();
    QVERIFY(files->isValid());
    RotavexPlugin::rotavexSettings->clear();
}

void RotavexPluginTest::cleanup()
{
    QVERIFY(RotavexPlugin::rotavexSettings->group().isEmpty());
    RotavexPlugin::rotavexSettings->clear();
    RotavexPlugin::rotavexSettings->sync();
    QCOMPARE(hello(), u"Hello"_s);
}

void RotavexPluginTest::theSettingsStoreExistsBeforeAnyApplication()
{
    QVERIFY(storeExistedBeforeMain);
}

void RotavexPluginTest::theSettingsStoreIsTheHosts()
{
    const QSettings *settings = RotavexPlugin::rotavexSettings;
    QCOMPARE(settings->organizationName(), u"tarnwheel"_s);
    QCOMPARE(settings->applicationName(), u"Rotavexm"_s);
    QCOMPARE(settings->parent(), nullptr);
}

void RotavexPluginTest::theMethodTableHasItsFixedOrder()
{
    const QMetaObject &meta = RotavexPlugin::staticMetaObject;
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);

    QStringList signatures;
    QList<QMetaMethod::MethodType> types;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
        types.append(meta.method(i).methodType());
    }
    QCOMPARE(signatures, QStringList({u"deviceLocked(QString)"_s, u"deviceDiscovered(RotavexDevice*)"_s,
                                      u"deviceLost(RotavexDevice*)"_s, u"discoverDevices(bool)"_s,
                                      u"discoverDevices()"_s}));
    QCOMPARE(types,
             QList<QMetaMethod::MethodType>({QMetaMethod::Signal, QMetaMethod::Signal, QMetaMethod::Signal,
                                             QMetaMethod::Slot, QMetaMethod::Slot}));
}

void RotavexPluginTest::itAnswersCastsToItsName()
{
    const auto plugin = makePlugin();
    QCOMPARE(plugin->qt_metacast("RotavexPlugin"),
             static_cast<void *>(static_cast<RotavexPlugin *>(plugin.get())));
    QVERIFY(plugin->inherits("RotavexPlugin"));
    QCOMPARE(plugin->qt_metacast("AnotherPlugin"), nullptr);
}

void RotavexPluginTest::itIsAbstractUntilDiscoveryIsImplemented()
{
    QVERIFY(std::is_abstract_v<RotavexPlugin>);
    QVERIFY(!std::is_abstract_v<Plugin>);
    QVERIFY(std::has_virtual_destructor_v<RotavexPlugin>);
}

void RotavexPluginTest::itKeepsItsIdentity()
{
    QObject parent;
    const QIcon icon{QPixmap(8, 8)};
    const auto *plugin =
        new Plugin(u"name"_s, icon, u"what it is"_s, u"whose it is"_s, u"/nowhere"_s, &parent);
    QCOMPARE(plugin->name(), u"name"_s);
    QCOMPARE(plugin->icon().cacheKey(), icon.cacheKey());
    QCOMPARE(plugin->description(), u"what it is"_s);
    QCOMPARE(plugin->copyright(), u"whose it is"_s);
    QCOMPARE(plugin->translationDirectory, u"/nowhere"_s);
    QCOMPARE(plugin->parent(), &parent);
}

void RotavexPluginTest::theIconIsHandedOutByReference()
{
    const auto plugin = makePlugin();
    QCOMPARE(&plugin->icon(), &plugin->icon());
    QVERIFY((std::is_same_v<decltype(plugin->icon()), const QIcon &>));
    QVERIFY((std::is_same_v<decltype(plugin->name()), QString>));
}

void RotavexPluginTest::theOrchestratorIsPassedThrough()
{
    int host = 0;
    auto *orchestrator = reinterpret_cast<RotavexOrchestrator *>(&host);
    const auto plugin = makePlugin();
    QCOMPARE(plugin->orchestrator(), nullptr);
    plugin->setOrchestrator(orchestrator);
    QCOMPARE(plugin->orchestrator(), orchestrator);
    plugin->setOrchestrator(nullptr);
    QCOMPARE(plugin->orchestrator(), nullptr);
}

void RotavexPluginTest::devicesArePassedThroughTheSignals()
{
    int host = 0;
    auto *device = reinterpret_cast<RotavexDevice *>(&host);
    const auto plugin = makePlugin();
    QSignalSpy locked(plugin.get(), &RotavexPlugin::deviceLocked);
    QSignalSpy discovered(plugin.get(), &RotavexPlugin::deviceDiscovered);
    QSignalSpy lost(plugin.get(), &RotavexPlugin::deviceLost);

    Q_EMIT plugin->deviceLocked(u"an identifier"_s);
    Q_EMIT plugin->deviceDiscovered(device);
    Q_EMIT plugin->deviceLost(device);

    QCOMPARE(locked, QList<QVariantList>({{u"an identifier"_s}}));
    QCOMPARE(discovered.size(), 1);
    QCOMPARE(discovered.at(0).at(0).value<RotavexDevice *>(), device);
    QCOMPARE(lost.size(), 1);
    QCOMPARE(lost.at(0).at(0).value<RotavexDevice *>(), device);
}

void RotavexPluginTest::devicesArePassedThroughQueuedConnections()
{
    int host = 0;
    auto *device = reinterpret_cast<RotavexDevice *>(&host);
    const auto plugin = makePlugin();
    RotavexDevice *received = nullptr;
    connect(
        plugin.get(), &RotavexPlugin::deviceLost, this, [&](RotavexDevice *lost) { received = lost; },
        Qt::QueuedConnection);
    Q_EMIT plugin->deviceLost(device);
    QCOMPARE(received, nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(received, device);
}

void RotavexPluginTest::discoveryReachesTheDerivedPlugin()
{
    const auto plugin = makePlugin();
    const QMetaObject &meta = RotavexPlugin::staticMetaObject;
    QVERIFY(meta.method(meta.methodOffset() + 3).invoke(plugin.get(), Q_ARG(bool, true)));
    QVERIFY(meta.method(meta.methodOffset() + 4).invoke(plugin.get()));
    QCOMPARE(plugin->discoveries, QList<bool>({true, false}));
}

void RotavexPluginTest::aNewPluginHasOneEmptyTranslator()
{
    const auto plugin = makePlugin();
    QCOMPARE(plugin->translators.keys(), QStringList(u"rotavexplugin"_s));
    const QTranslator *translator = plugin->translators.first();
    QVERIFY(translator->isEmpty());
    QCOMPARE(translator->parent(), plugin.get());
}

void RotavexPluginTest::aTranslatorIsRegisteredOnce()
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

void RotavexPluginTest::translatorsGoWithThePlugin()
{
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, u"de"_s, u"Hallo"_s));
    auto plugin = makePlugin();
    plugin->switchLanguage(german);
    QCOMPARE(hello(), u"Hallo"_s);
    plugin.reset();
    QCOMPARE(hello(), u"Hello"_s);
}

void RotavexPluginTest::constructionLoadsNoLanguage()
{
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, QLocale().name(), u"Moin"_s));
    LanguageWatcher watcher;
    const auto plugin = makePlugin();
    plugin->registerTranslator(u"own"_s);
    QCOMPARE(watcher.changes, 0);
    QCOMPARE(hello(), u"Hello"_s);
}

void RotavexPluginTest::switchingLoadsTheTranslationOfTheLanguage()
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

void RotavexPluginTest::everyRegisteredTranslatorIsSwitched()
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

void RotavexPluginTest::switchingTwiceTellsTheApplicationOfEveryChange()
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

void RotavexPluginTest::withoutADirectoryNothingIsSwitched()
{
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, u"de"_s, u"Hallo"_s));
    const auto plugin = makePlugin(QString());
    QTranslator *translator = plugin->translators.first();
    QVERIFY(translator->load(files->filePath(u"rotavexplugin_de.qm"_s)));
    QCoreApplication::installTranslator(translator);

    LanguageWatcher watcher;
    plugin->switchLanguage(french);
    QCOMPARE(watcher.changes, 0);
    QCOMPARE(hello(), u"Hallo"_s);
}

void RotavexPluginTest::withoutATranslatorNothingIsSwitched()
{
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, u"de"_s, u"Hallo"_s));
    const auto plugin = makePlugin();
    qDeleteAll(std::exchange(plugin->translators, {}));
    LanguageWatcher watcher;
    plugin->switchLanguage(german);
    QCOMPARE(watcher.changes, 0);
}

void RotavexPluginTest::aLanguageWithoutFilesLeavesTheSourceTexts()
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

/** The host's resources for the time of a test: ":/Resources/Translations/rotavexplugin_de.qm" and one more.
 */
class HostResources
{
public:
    HostResources()
    {
        makeTranslation(directory.path(), u"rotavexplugin"_s, u"de"_s, u"Hallo vom Host"_s);
        makeTranslation(directory.path(), u"own"_s, u"de"_s, u"never found"_s);
        const QString collection = directory.filePath(u"host.qrc"_s);
        write(collection,
              u"<RCC><qresource prefix=\"/Resources/Translations\"><file>rotavexplugin_de.qm</file>"
              u"<file>own_de.qm</file></qresource></RCC>"_s);
        const QString resource = directory.filePath(u"host.rcc"_s);
        run(RCC, {u"--binary"_s, collection, u"-o"_s, resource});
        registered = QResource::registerResource(resource);
    }
    ~HostResources() { QResource::unregisterResource(directory.filePath(u"host.rcc"_s)); }
    Q_DISABLE_COPY_MOVE(HostResources)

    bool registered = false;

private:
    QTemporaryDir directory;
};

void RotavexPluginTest::theHostsResourcesStandInForAMissingFile()
{
    const HostResources resources;
    QVERIFY(resources.registered);
    const auto plugin = makePlugin();
    plugin->switchLanguage(german);
    QCOMPARE(hello(), u"Hallo vom Host"_s);
    plugin->switchLanguage(french);
    QCOMPARE(hello(), u"Hello"_s);
}

void RotavexPluginTest::theFallbackIsTheBaseFileWhateverTheTranslator()
{
    const HostResources resources;
    const auto plugin = makePlugin();
    plugin->registerTranslator(u"own"_s);
    plugin->switchLanguage(german);
    QCOMPARE(plugin->translators.value(u"own"_s)->translate("Test", "Hello"), u"Hallo vom Host"_s);
    QCOMPARE(hello(), u"Hallo vom Host"_s);
}

void RotavexPluginTest::thePluginsOwnFileWinsOverTheResources()
{
    const HostResources resources;
    QVERIFY(makeTranslation(files->path(), u"rotavexplugin"_s, u"de"_s, u"Hallo"_s));
    const auto plugin = makePlugin();
    plugin->switchLanguage(german);
    QCOMPARE(hello(), u"Hallo"_s);
}

void RotavexPluginTest::aGroupBecomesDynamicProperties()
{
    RotavexPlugin::rotavexSettings->setValue(u"logbook/page/A"_s, 1);
    RotavexPlugin::rotavexSettings->setValue(u"logbook/page/B"_s, u"x"_s);
    QObject target;
    QCOMPARE(makePlugin()->loadSettings(u"page"_s, &target), QStringList({u"A"_s, u"B"_s}));
    QCOMPARE(target.dynamicPropertyNames(), QList<QByteArray>({"A", "B"}));
    QCOMPARE(target.property("A").toInt(), 1);
    QCOMPARE(target.property("B").toString(), u"x"_s);
}

void RotavexPluginTest::aDeclaredPropertyIsSetToo()
{
    RotavexPlugin::rotavexSettings->setValue(u"logbook/page/objectName"_s, u"renamed"_s);
    QObject target;
    makePlugin()->loadSettings(u"page"_s, &target);
    QCOMPARE(target.objectName(), u"renamed"_s);
    QVERIFY(target.dynamicPropertyNames().isEmpty());
}

void RotavexPluginTest::aMissingGroupSetsNothing()
{
    QObject target;
    QCOMPARE(makePlugin()->loadSettings(u"missing"_s, &target), QStringList());
    QVERIFY(target.dynamicPropertyNames().isEmpty());
}

void RotavexPluginTest::subgroupsAreNotLoaded()
{
    RotavexPlugin::rotavexSettings->setValue(u"logbook/page/A"_s, 1);
    RotavexPlugin::rotavexSettings->setValue(u"logbook/page/deeper/B"_s, 2);
    RotavexPlugin::rotavexSettings->setValue(u"page/C"_s, 3);
    QObject target;
    QCOMPARE(makePlugin()->loadSettings(u"page"_s, &target), QStringList(u"A"_s));
}

void RotavexPluginTest::latin1KeysNameTheProperty()
{
    RotavexPlugin::rotavexSettings->setValue(u"logbook/page/größe"_s, 7);
    QObject target;
    QCOMPARE(makePlugin()->loadSettings(u"page"_s, &target), QStringList(u"größe"_s));
    QCOMPARE(target.dynamicPropertyNames(), QList<QByteArray>({"gr\xf6\xdf"
                                                               "e"}));
}

void RotavexPluginTest::aSavedSettingIsLoadedAtOnce()
{
    const auto plugin = makePlugin();
    QObject target;
    plugin->saveSetting(u"page"_s, u"unit"_s, u"mAh"_s);
    QCOMPARE(plugin->loadSettings(u"page"_s, &target), QStringList(u"unit"_s));
    QCOMPARE(target.property("unit").toString(), u"mAh"_s);

    plugin->saveSetting(u"page"_s, u"unit"_s, 5);
    plugin->loadSettings(u"page"_s, &target);
    QCOMPARE(target.property("unit").toInt(), 5);
}

void RotavexPluginTest::aSavedSettingIsOnDiskAtOnce()
{
    makePlugin()->saveSetting(u"page"_s, u"unit"_s, u"amperes"_s);
    QFile file(RotavexPlugin::rotavexSettings->fileName());
    QVERIFY(file.open(QFile::ReadOnly));
    QVERIFY(file.readAll().contains("amperes"));
}

void RotavexPluginTest::settingsLieUnderThePluginsName()
{
    makePlugin()->saveSetting(u"page"_s, u"unit"_s, 1);
    QCOMPARE(RotavexPlugin::rotavexSettings->allKeys(), QStringList(u"logbook/page/unit"_s));
}

void RotavexPluginTest::settingsLeaveTheGroupAsItWas()
{
    const auto plugin = makePlugin();
    QObject target;
    RotavexPlugin::rotavexSettings->beginGroup(u"SETTINGS"_s);
    plugin->saveSetting(u"page"_s, u"unit"_s, 1);
    plugin->loadSettings(u"page"_s, &target);
    QCOMPARE(RotavexPlugin::rotavexSettings->group(), u"SETTINGS"_s);
    RotavexPlugin::rotavexSettings->endGroup();
}

QTEST_MAIN(RotavexPluginTest)
#include "tst_rotavexplugin.moc"
