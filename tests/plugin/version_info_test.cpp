// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "plugin/version_info.h"

#include <QTest>

using namespace Qt::StringLiterals;

class VersionInfoTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void parses_data(); // no parts: rejected
    void parses();
    void compares_data();
    void compares();
};

void VersionInfoTest::parses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("parts");
    QTest::addColumn<QString>("reformatted");
    const auto row = [](const char *text, QList<int> parts, const char *reformatted) {
        QTest::newRow(text) << QString::fromLatin1(text) << parts << QString::fromLatin1(reformatted);
    };
    row("10", {10, 0, 0}, "10.0.0");
    row("8.0", {8, 0, 0}, "8.0.0");
    row("1.01", {1, 1, 0}, "1.01.0");
    row("9.8.007", {9, 8, 7}, "9.8.007");
    row("1..2", {1, 0, 2}, "1.0.2");
    row("1.a", {1, 0, 0}, "1.0.0");
    row("1.3b2", {1, 3, 0}, "1.003.0");
    row(" -2.+4", {-2, 4, 0}, "-2.04.0");
    row("6.1.0-18-amd64", {6, 1, 0}, "6.1.0000000000");
    row("10.4.11.1", {}, "");
    row("", {}, "");
    QTest::newRow("nil") << QString() << QList<int>() << QString();
    row("99999999999", {2147483647, 0, 0}, "2147483647.0.0");
}

void VersionInfoTest::parses()
{
    QFETCH(QString, text);
    QFETCH(QList<int>, parts);
    QFETCH(QString, reformatted);
    const auto version = QVVersionInfo_M880::versionInfoWithString(text);
    QCOMPARE(bool(version), !parts.isEmpty());
    if (!version)
        return;
    QCOMPARE((QList<int>{version->majorPart(), version->minorPart(), version->otherPart()}), parts);
    QCOMPARE(version->stringValue(), reformatted);
    QCOMPARE(version->description(), u'v' + reformatted);
}

void VersionInfoTest::compares_data()
{
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    QTest::addColumn<int>("order");
    QTest::newRow("precision does not count") << u"1.1"_s << u"1.01"_s << 0;
    QTest::newRow("whole numbers, not decimals") << u"1.10"_s << u"1.9"_s << 1;
    QTest::newRow("major first") << u"9.9.9"_s << u"10.0"_s << -1;
    QTest::newRow("third part") << u"1.2.3"_s << u"1.2.4"_s << -1;
    QTest::newRow("missing parts are 0") << u"1"_s << u"1.0.0"_s << 0;
}

void VersionInfoTest::compares()
{
    QFETCH(QString, left);
    QFETCH(QString, right);
    QFETCH(int, order);
    const auto version = QVVersionInfo_M880::versionInfoWithString(left);
    QCOMPARE(version->compare(right), order);
    QCOMPARE(QVVersionInfo_M880::versionInfoWithString(right)->compare(*version), -order);
}

QTEST_GUILESS_MAIN(VersionInfoTest)
#include "version_info_test.moc"
