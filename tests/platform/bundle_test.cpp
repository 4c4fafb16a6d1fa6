// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/test_bundle.h"

#include "platform/print_dialog.h"

#include <QFile>
#include <QJsonArray>
#include <QTest>

using platform::Bundle;

class BundleTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void unusableInfoNamesFileAndProblem_data();
    void unusableInfoNamesFileAndProblem();
    void folderWithoutBundle();
    void servesModel_data();
    void servesModel();
    void stringsFallBack_data();
    void stringsFallBack();
    void brokenStringTableIsLoggedAndPassedOver();
    void unusableCodeNamesFileAndProblem_data();
    void unusableCodeNamesFileAndProblem();
    void principalObject();
};

void BundleTest::unusableInfoNamesFileAndProblem_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("problem");
    const QJsonValue missing(QJsonValue::Undefined);
    QTest::newRow("no identifier") << Bundle::identifierKey << missing << "is missing";
    QTest::newRow("no panel type") << Bundle::panelTypeKey << missing << "is missing";
    QTest::newRow("identifier of a wrong type") << Bundle::identifierKey << QJsonValue(7) << "not a text";
    QTest::newRow("empty principal class") << Bundle::principalClassKey << QJsonValue(QString()) << "empty";
    QTest::newRow("path to a file elsewhere")
        << Bundle::executableKey << QJsonValue(QStringLiteral("/usr/lib/libc.so")) << "inside the bundle";
    QTest::newRow("way out of the folder")
        << Bundle::executableKey << QJsonValue(QStringLiteral("../lib.so")) << "inside the bundle";
    QTest::newRow("parent folder") << Bundle::executableKey << QJsonValue(QStringLiteral(".."))
                                   << "inside the bundle";
    QTest::newRow("models as a text")
        << Bundle::printerModelsKey << QJsonValue(QStringLiteral("KELMAR")) << "list";
    QTest::newRow("models as numbers")
        << Bundle::printerModelsKey << QJsonValue(QJsonArray{1}) << "list of texts";
}

void BundleTest::unusableInfoNamesFileAndProblem()
{
    QFETCH(QString, key);
    QFETCH(QJsonValue, value);
    QFETCH(QString, problem);
    TestBundle files;
    files.setInfo(key, value);
    QString error;
    QVERIFY(!Bundle::open(files.folder(), QLocale(), &error));
    QVERIFY2(error.startsWith(files.folder() + QStringLiteral("/Info.json: ")), qPrintable(error));
    QVERIFY2(error.contains(key) && error.contains(problem), qPrintable(error));
    QVERIFY(!Bundle::open(files.folder(), QLocale(), nullptr));
}

void BundleTest::folderWithoutBundle()
{
    TestBundle files;
    QString error;
    QVERIFY(!Bundle::open(files.folder() + QStringLiteral("/nowhere"), QLocale(), &error));
    QVERIFY2(error.contains(QStringLiteral("nowhere")), qPrintable(error));

    for (const char *contents : {"{\"CFBundleIdentifier\": ", "[1]", ""}) {
        files.writeFile(QStringLiteral("Info.json"), contents);
        QVERIFY(!Bundle::open(files.folder(), QLocale(), &error));
        QVERIFY2(error.startsWith(files.folder() + QStringLiteral("/Info.json: ")), qPrintable(error));
    }
    QVERIFY(QFile::remove(files.folder() + QStringLiteral("/Info.json")));
    QVERIFY(!Bundle::open(files.folder(), QLocale(), &error));
    QVERIFY2(error.startsWith(files.folder() + QStringLiteral("/Info.json: ")), qPrintable(error));
}

void BundleTest::servesModel_data()
{
    QTest::addColumn<QJsonValue>("patterns");
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("served");
    const QJsonValue family = QJsonArray{QStringLiteral("Other"), QStringLiteral("KELMAR Orb*")};
    QTest::newRow("family") << family << "KELMAR OrbM880Series" << true;
    QTest::newRow("slash in the name") << family << "KELMAR Orb310/313Series" << true;
    QTest::newRow("not from the start") << family << "My KELMAR OrbM880Series" << false;
    QTest::newRow("another maker") << family << "Laser 1" << false;
    QTest::newRow("no name") << family << QString() << false;
    QTest::newRow("no patterns") << QJsonValue(QJsonValue::Undefined) << "KELMAR OrbM880Series" << false;
}

void BundleTest::servesModel()
{
    QFETCH(QJsonValue, patterns);
    QFETCH(QString, model);
    TestBundle files;
    files.setInfo(Bundle::printerModelsKey, patterns);
    QTEST(files.open()->servesModel(model), "served");
}

void BundleTest::stringsFallBack_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("language") << "de_DE"
                              << "Duplex"
                              << ""
                              << "Beidseitig";
    QTest::newRow("territory without a table") << "de_AT"
                                               << "Duplex"
                                               << ""
                                               << "Beidseitig";
    QTest::newRow("territory with a table") << "de_CH"
                                            << "Duplex"
                                            << ""
                                            << "Doppelseitig";
    QTest::newRow("from territory to language") << "de_CH"
                                                << "Tray"
                                                << ""
                                                << "Fach";
    QTest::newRow("to English") << "de_DE"
                                << "Stapler"
                                << ""
                                << "Staple unit";
    QTest::newRow("language without a table") << "fi_FI"
                                              << "Duplex"
                                              << ""
                                              << "Two-sided";
    QTest::newRow("C locale") << "C"
                              << "Duplex"
                              << ""
                              << "Two-sided";
    QTest::newRow("given text") << "de_DE"
                                << "Unknown"
                                << "given"
                                << "given";
    QTest::newRow("key itself") << "de_DE"
                                << "Unknown"
                                << ""
                                << "Unknown";
}

void BundleTest::stringsFallBack()
{
    static const auto files = [] {
        auto made = std::make_unique<TestBundle>();
        const QString context = QStringLiteral("Localizable");
        made->writeStrings(QStringLiteral("en"), context,
                           {{QStringLiteral("Duplex"), QStringLiteral("Two-sided")},
                            {QStringLiteral("Stapler"), QStringLiteral("Staple unit")}});
        made->writeStrings(QStringLiteral("de"), context,
                           {{QStringLiteral("Duplex"), QStringLiteral("Beidseitig")},
                            {QStringLiteral("Tray"), QStringLiteral("Fach")}});
        made->writeStrings(QStringLiteral("de_CH"), context,
                           {{QStringLiteral("Duplex"), QStringLiteral("Doppelseitig")}});
        return made;
    }();
    QFETCH(QString, locale);
    QFETCH(QString, key);
    QFETCH(QString, value);
    const auto bundle = files->open(QLocale(locale));
    QTEST(bundle->localizedStringForKey(key, value), "text");
    // Texts of code stand under their own context, which this table does not have.
    QCOMPARE(bundle->translate("SomeClass", "Duplex"), QStringLiteral("Duplex"));
}

void BundleTest::brokenStringTableIsLoggedAndPassedOver()
{
    TestBundle files;
    files.writeFile(QStringLiteral("strings/Test_de.qm"), "no string table");
    files.writeStrings(QStringLiteral("en"), QStringLiteral("Localizable"),
                       {{QStringLiteral("Duplex"), QStringLiteral("Two-sided")}});
    const auto bundle = files.open(QLocale(QLocale::German));
    const QString path = files.folder() + QStringLiteral("/strings/Test_de.qm: not a usable string table");
    QTest::ignoreMessage(QtWarningMsg, qPrintable(path));
    QCOMPARE(bundle->localizedStringForKey(QStringLiteral("Duplex")), QStringLiteral("Two-sided"));
}

void BundleTest::unusableCodeNamesFileAndProblem_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("principalClass");
    QTest::addColumn<QString>("problem");
    QTest::newRow("no file") << QString() << "StubExtension"
                             << "no such file";
    QTest::newRow("no plug-in") << QStringLiteral(KELMAR_SOURCE_DIR "/LICENSE") << "StubExtension"
                                << "libTest.so";
    QTest::newRow("another class") << QStringLiteral(STUB_EXTENSION) << "Expected"
                                   << "StubExtension, not Expected";
    QTest::newRow("no extension") << QStringLiteral(STUB_OTHER_PLUGIN) << "StubExtension"
                                  << "no print-dialog extension";
}

void BundleTest::unusableCodeNamesFileAndProblem()
{
    QFETCH(QString, code);
    QFETCH(QString, principalClass);
    QFETCH(QString, problem);
    TestBundle files;
    files.setInfo(Bundle::principalClassKey, principalClass);
    if (!code.isNull())
        files.copyFile(code, QStringLiteral("libTest.so"));
    QString error;
    QVERIFY(!files.open()->principalObject(&error));
    QVERIFY2(error.startsWith(files.folder() + QStringLiteral("/libTest.so: ")), qPrintable(error));
    QVERIFY2(error.contains(problem), qPrintable(error));
}

void BundleTest::principalObject()
{
    TestBundle files;
    files.copyFile(QStringLiteral(STUB_EXTENSION), QStringLiteral("libTest.so"));
    const auto bundle = files.open();
    QString error;
    platform::PrintDialogExtension *extension = bundle->principalObject(&error);
    QVERIFY2(extension, qPrintable(error));
    QCOMPARE(bundle->principalObject(&error), extension);
    QVERIFY(extension->initWithBundle(bundle));
    QVERIFY(extension->PDEPanelsForTypeWithHostInfo(QStringLiteral("test-panels"), nullptr));
    QVERIFY(!extension->PDEPanelsForTypeWithHostInfo(QStringLiteral("Test-panels"), nullptr));
}

QTEST_GUILESS_MAIN(BundleTest)
#include "bundle_test.moc"
