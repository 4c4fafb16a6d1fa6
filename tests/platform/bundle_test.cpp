// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/paths.h"
#include "tests/support/test_bundle.h"

#include "platform/print_dialog.h"

#include <QFile>
#include <QJsonArray>
#include <QTest>

using platform::Bundle;
using namespace Qt::StringLiterals;

class BundleTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void unusableInfoNamesFileAndProblem_data();
    void unusableInfoNamesFileAndProblem();
    void foldersWithoutReadableInfo();
    void servesModel();
    void stringsFallBack();
    void unusableCodeNamesFileAndProblem();
    void principalObject();
};

void BundleTest::unusableInfoNamesFileAndProblem_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *name, const QString &key, const QJsonValue &value, const char *problem) {
        QTest::newRow(name) << key << value << problem;
    };
    row("missing", Bundle::panelTypeKey, QJsonValue::Undefined, "is missing");
    row("wrong type", Bundle::identifierKey, 7, "not a text");
    row("empty", Bundle::principalClassKey, QString(), "empty");
    row("file elsewhere", Bundle::executableKey, u"/usr/lib/libc.so"_s, "inside the bundle");
    row("parent folder", Bundle::executableKey, u".."_s, "inside the bundle");
    row("models as a text", Bundle::printerModelsKey, u"KELMAR"_s, "list of texts");
    row("secret keys as a text", Bundle::secretKeysKey, u"code"_s, "list of objects");
    row("models as numbers", Bundle::printerModelsKey, QJsonArray{1}, "list of texts");
    row("protection as a list", Bundle::protectingOptionsKey, QJsonArray{u"PrintMode"_s}, "object of lists");
    row("protecting choice alone", Bundle::protectingOptionsKey, QJsonObject{{u"PrintMode"_s, u"Private"_s}},
        "object of lists");
    row("secret without its use", Bundle::secretKeysKey,
        QJsonArray{QJsonObject{{u"Key"_s, u"code"_s}, {u"Options"_s, QJsonArray{u"Digit1"_s}}}}, "UsedWith");
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
    QVERIFY2(error.startsWith(files.folder() + u"/Info.json: "_s), qPrintable(error));
    QVERIFY2(error.contains(key) && error.contains(problem), qPrintable(error));
    QVERIFY(!Bundle::open(files.folder(), QLocale(), nullptr));
}

void BundleTest::foldersWithoutReadableInfo()
{
    TestBundle files;
    QString error;
    const QString nowhere = files.folder() + u"/nowhere"_s;
    QVERIFY(!Bundle::open(nowhere, QLocale(), &error));
    QCOMPARE(error, nowhere + u": there is no such folder"_s);
    const QString info = files.folder() + u"/Info.json"_s;
    for (const char *contents : {"{\"CFBundleIdentifier\": ", "[1]", "", "no file"}) {
        files.writeFile(u"Info.json"_s, contents);
        if (qstrcmp(contents, "no file") == 0)
            QVERIFY(QFile::remove(info));
        error.clear();
        QVERIFY(!Bundle::open(files.folder(), QLocale(), &error));
        QVERIFY2(error.startsWith(info + u": "_s), qPrintable(error));
    }
    files.writeFile(u"Info.json"_s, QByteArray(2 << 20, ' '));
    QVERIFY(!Bundle::open(files.folder(), QLocale(), &error));
    QVERIFY2(error.startsWith(info + u": larger than"_s), qPrintable(error));
}

void BundleTest::servesModel()
{
    TestBundle files;
    files.setInfo(Bundle::printerModelsKey, QJsonArray{u"Other"_s, u"KELMAR Orb*"_s});
    QVERIFY(files.open()->servesModel(u"KELMAR Orb310/313Series"_s));
    QVERIFY(!files.open()->servesModel(u"My KELMAR OrbM880Series"_s));
    files.setInfo(Bundle::printerModelsKey, QJsonValue::Undefined);
    QVERIFY(!files.open()->servesModel(u"KELMAR OrbM880Series"_s));
}

void BundleTest::stringsFallBack()
{
    TestBundle files;
    const auto write = [&files](const QString &language, const QMap<QString, QString> &texts) {
        files.writeStrings(language, u"Localizable"_s, texts);
    };
    write(u"en"_s, {{u"Duplex"_s, u"Two-sided"_s}, {u"Stapler"_s, u"Staple unit"_s}});
    write(u"de"_s, {{u"Duplex"_s, u"Beidseitig"_s}, {u"Tray"_s, u"Fach"_s}});
    write(u"de_CH"_s, {{u"Duplex"_s, u"Doppelseitig"_s}});
    files.writeFile(u"strings/Test_fi.qm"_s, "no string table");
    const auto text = [&files](const QString &locale, const QString &key, const QString &value = {}) {
        return files.open(QLocale(locale))->localizedStringForKey(key, value);
    };
    QCOMPARE(text(u"de_CH"_s, u"Duplex"_s), u"Doppelseitig"_s);
    QCOMPARE(text(u"de_CH"_s, u"Tray"_s), u"Fach"_s);
    QCOMPARE(text(u"de_AT"_s, u"Duplex"_s), u"Beidseitig"_s);
    QCOMPARE(text(u"de_CH"_s, u"Tray"_s, u"given"_s), u"Fach"_s);
    QCOMPARE(text(u"de_DE"_s, u"Stapler"_s, u"given"_s), u"given"_s);
    QCOMPARE(text(u"de_DE"_s, u"Stapler"_s), u"Staple unit"_s);
    QCOMPARE(text(u"de_DE"_s, u"Unknown"_s, u"given"_s), u"given"_s);
    QCOMPARE(text(u"de_DE"_s, u"Unknown"_s), u"Unknown"_s);
    QCOMPARE(text(u"C"_s, u"Duplex"_s), u"Two-sided"_s);
    const QString warning = files.folder() + u"/strings/Test_fi.qm: not a usable string table"_s;
    QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
    QCOMPARE(text(u"fi_FI"_s, u"Duplex"_s, u"given"_s), u"Two-sided"_s);
    // Texts of code have their own context, which these tables lack.
    QCOMPARE(files.open()->translate("SomeClass", "Duplex"), u"Duplex"_s);
}

void BundleTest::unusableCodeNamesFileAndProblem()
{
    TestBundle files;
    files.setInfo(Bundle::principalClassKey, u"Expected"_s);
    const QString path = files.folder() + u"/libTest.so: "_s;
    QString error;
    QVERIFY(!files.open()->principalObject(&error));
    QCOMPARE(error, path + u"there is no such file"_s);
    const QList<std::pair<QString, QString>> unusable{
        {sourcePath("/LICENSE"), {}},
        {QStringLiteral(STUB_EXTENSION), u"the root component is StubExtension, not Expected"_s},
        {QStringLiteral(STUB_OTHER_PLUGIN), u"Expected is no print-dialog extension"_s}};
    for (const auto &[code, problem] : unusable) {
        files.copyFile(code, u"libTest.so"_s);
        error.clear();
        QVERIFY(!files.open()->principalObject(&error));
        QVERIFY2(error.startsWith(path + problem), qPrintable(error));
    }
}

void BundleTest::principalObject()
{
    TestBundle files;
    files.copyFile(QStringLiteral(STUB_EXTENSION), u"libTest.so"_s);
    const auto bundle = files.open();
    QString error;
    platform::PrintDialogExtension *extension = bundle->principalObject(&error);
    QVERIFY2(extension, qPrintable(error));
    QCOMPARE(bundle->principalObject(&error), extension);
    QVERIFY(extension->PDEPanelsForTypeWithHostInfo(u"stub"_s, nullptr));
}

QTEST_GUILESS_MAIN(BundleTest)
#include "bundle_test.moc"
