// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/plugin/testplugin.h"
#include "tests/support/files.h"

#include <QDir>
#include <QSettings>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class PluginSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aGroupBecomesDynamicProperties();
    void aDeclaredPropertyIsSetToo();
    void aMissingGroupSetsNothing();
    void subgroupsAreNotLoaded();
    void latin1KeysNameTheProperty();
    void aSavedSettingIsLoadedAtOnce();
    void aSavedSettingIsOnDiskAtOnce();
    void settingsLieUnderThePluginsName();
    void settingsLeaveTheGroupAsItWas();
};

void PluginSettingsTest::initTestCase()
{
    // The store of a developer is never touched: this one was made for the home that the test runs in.
    QVERIFY2(RotavexPlugin::rotavexSettings->fileName().startsWith(QDir::homePath()),
             qPrintable(RotavexPlugin::rotavexSettings->fileName()));
}

void PluginSettingsTest::init()
{
    RotavexPlugin::rotavexSettings->clear();
}

void PluginSettingsTest::cleanup()
{
    QVERIFY(RotavexPlugin::rotavexSettings->group().isEmpty());
    RotavexPlugin::rotavexSettings->clear();
    RotavexPlugin::rotavexSettings->sync();
}

void PluginSettingsTest::aGroupBecomesDynamicProperties()
{
    RotavexPlugin::rotavexSettings->setValue(u"logbook/page/A"_s, 1);
    RotavexPlugin::rotavexSettings->setValue(u"logbook/page/B"_s, u"x"_s);
    QObject target;
    QCOMPARE(TestPlugin::make()->loadSettings(u"page"_s, &target), QStringList({u"A"_s, u"B"_s}));
    QCOMPARE(target.dynamicPropertyNames(), QList<QByteArray>({"A", "B"}));
    QCOMPARE(target.property("A").toInt(), 1);
    QCOMPARE(target.property("B").toString(), u"x"_s);
}

void PluginSettingsTest::aDeclaredPropertyIsSetToo()
{
    RotavexPlugin::rotavexSettings->setValue(u"logbook/page/objectName"_s, u"renamed"_s);
    QObject target;
    TestPlugin::make()->loadSettings(u"page"_s, &target);
    QCOMPARE(target.objectName(), u"renamed"_s);
    QVERIFY(target.dynamicPropertyNames().isEmpty());
}

void PluginSettingsTest::aMissingGroupSetsNothing()
{
    QObject target;
    QCOMPARE(TestPlugin::make()->loadSettings(u"missing"_s, &target), QStringList());
    QVERIFY(target.dynamicPropertyNames().isEmpty());
}

void PluginSettingsTest::subgroupsAreNotLoaded()
{
    RotavexPlugin::rotavexSettings->setValue(u"logbook/page/A"_s, 1);
    RotavexPlugin::rotavexSettings->setValue(u"logbook/page/deeper/B"_s, 2);
    RotavexPlugin::rotavexSettings->setValue(u"page/C"_s, 3);
    QObject target;
    QCOMPARE(TestPlugin::make()->loadSettings(u"page"_s, &target), QStringList(u"A"_s));
}

void PluginSettingsTest::latin1KeysNameTheProperty()
{
    RotavexPlugin::rotavexSettings->setValue(u"logbook/page/größe"_s, 7);
    QObject target;
    QCOMPARE(TestPlugin::make()->loadSettings(u"page"_s, &target), QStringList(u"größe"_s));
    QCOMPARE(target.dynamicPropertyNames(), QList<QByteArray>({"gr\xf6\xdf"
                                                               "e"}));
}

void PluginSettingsTest::aSavedSettingIsLoadedAtOnce()
{
    const auto plugin = TestPlugin::make();
    QObject target;
    plugin->saveSetting(u"page"_s, u"unit"_s, u"mAh"_s);
    QCOMPARE(plugin->loadSettings(u"page"_s, &target), QStringList(u"unit"_s));
    QCOMPARE(target.property("unit").toString(), u"mAh"_s);

    plugin->saveSetting(u"page"_s, u"unit"_s, 5);
    plugin->loadSettings(u"page"_s, &target);
    QCOMPARE(target.property("unit").toInt(), 5);
}

void PluginSettingsTest::aSavedSettingIsOnDiskAtOnce()
{
    TestPlugin::make()->saveSetting(u"page"_s, u"unit"_s, u"amperes"_s);
    QVERIFY(Test::contents(RotavexPlugin::rotavexSettings->fileName()).contains("amperes"));
}

void PluginSettingsTest::settingsLieUnderThePluginsName()
{
    TestPlugin::make()->saveSetting(u"page"_s, u"unit"_s, 1);
    QCOMPARE(RotavexPlugin::rotavexSettings->allKeys(), QStringList(u"logbook/page/unit"_s));
}

void PluginSettingsTest::settingsLeaveTheGroupAsItWas()
{
    const auto plugin = TestPlugin::make();
    QObject target;
    RotavexPlugin::rotavexSettings->beginGroup(u"SETTINGS"_s);
    plugin->saveSetting(u"page"_s, u"unit"_s, 1);
    plugin->loadSettings(u"page"_s, &target);
    QCOMPARE(RotavexPlugin::rotavexSettings->group(), u"SETTINGS"_s);
    RotavexPlugin::rotavexSettings->endGroup();
}

QTEST_MAIN(PluginSettingsTest)
#include "tst_pluginsettings.moc"
