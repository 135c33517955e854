// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/plugin/testplugin.h"

#include <QMetaMethod>
#include <QPixmap>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <type_traits>

using namespace Qt::Literals::StringLiterals;

// What a host may find in the store before main(): the initialiser runs when the program is loaded.
static const bool storeExistedBeforeMain =
    RotavexPlugin::rotavexSettings != nullptr && QCoreApplication::instance() == nullptr;

class RotavexPluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

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
    const auto plugin = TestPlugin::make();
    QCOMPARE(plugin->qt_metacast("RotavexPlugin"),
             static_cast<void *>(static_cast<RotavexPlugin *>(plugin.get())));
    QVERIFY(plugin->inherits("RotavexPlugin"));
    QCOMPARE(plugin->qt_metacast("AnotherPlugin"), nullptr);
}

void RotavexPluginTest::itIsAbstractUntilDiscoveryIsImplemented()
{
    QVERIFY(std::is_abstract_v<RotavexPlugin>);
    QVERIFY(!std::is_abstract_v<TestPlugin>);
    QVERIFY(std::has_virtual_destructor_v<RotavexPlugin>);
}

void RotavexPluginTest::itKeepsItsIdentity()
{
    QObject parent;
    const QIcon icon{QPixmap(8, 8)};
    const auto *plugin =
        new TestPlugin(u"name"_s, icon, u"what it is"_s, u"whose it is"_s, u"/nowhere"_s, &parent);
    QCOMPARE(plugin->name(), u"name"_s);
    QCOMPARE(plugin->icon().cacheKey(), icon.cacheKey());
    QCOMPARE(plugin->description(), u"what it is"_s);
    QCOMPARE(plugin->copyright(), u"whose it is"_s);
    QCOMPARE(plugin->translationDirectory, u"/nowhere"_s);
    QCOMPARE(plugin->parent(), &parent);
}

void RotavexPluginTest::theIconIsHandedOutByReference()
{
    const auto plugin = TestPlugin::make();
    QCOMPARE(&plugin->icon(), &plugin->icon());
    QVERIFY((std::is_same_v<decltype(plugin->icon()), const QIcon &>));
    QVERIFY((std::is_same_v<decltype(plugin->name()), QString>));
}

void RotavexPluginTest::theOrchestratorIsPassedThrough()
{
    int host = 0;
    auto *orchestrator = reinterpret_cast<RotavexOrchestrator *>(&host);
    const auto plugin = TestPlugin::make();
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
    const auto plugin = TestPlugin::make();
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
    const auto plugin = TestPlugin::make();
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
    const auto plugin = TestPlugin::make();
    const QMetaObject &meta = RotavexPlugin::staticMetaObject;
    QVERIFY(meta.method(meta.methodOffset() + 3).invoke(plugin.get(), Q_ARG(bool, true)));
    QVERIFY(meta.method(meta.methodOffset() + 4).invoke(plugin.get()));
    QCOMPARE(plugin->discoveries, QList<bool>({true, false}));
}

QTEST_MAIN(RotavexPluginTest)
#include "tst_rotavexplugin.moc"
