// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "ppd/version_info.h"

#include <QTest>

#include <array>
#include <tuple>

using namespace Qt::StringLiterals;

class VersionInfoTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void parses()
    {
        struct Case
        {
            QString text;
            std::array<int, 3> parts;
            QString reformatted; // null if the text is not a version
        };
        const Case cases[]{
            {u"10"_s, {10, 0, 0}, u"10.0.0"_s},
            {u"8.0"_s, {8, 0, 0}, u"8.0.0"_s},
            {u"1.01"_s, {1, 1, 0}, u"1.01.0"_s},
            {u"9.8.007"_s, {9, 8, 7}, u"9.8.007"_s},
            {u"1..2"_s, {1, 0, 2}, u"1.0.2"_s},
            {u"1.a"_s, {1, 0, 0}, u"1.0.0"_s},
            {u"1.3b2"_s, {1, 3, 0}, u"1.003.0"_s},
            {u" -2.+4"_s, {-2, 4, 0}, u"-2.04.0"_s},
            {u"6.1.0-18-amd64"_s, {6, 1, 0}, u"6.1.0000000000"_s},
            {u"99999999999"_s, {2147483647, 0, 0}, u"2147483647.0.0"_s},
            {u"10.4.11.1"_s, {}, {}},
            {u""_s, {}, {}},
            {{}, {}, {}},
        };
        for (const Case &one : cases) {
            const auto version = QVVersionInfo_M880::versionInfoWithString(one.text);
            QVERIFY2(bool(version) == !one.reformatted.isNull(), qUtf8Printable(one.text));
            if (!version)
                continue;
            QCOMPARE(version->stringValue(), one.reformatted);
            QCOMPARE((std::array{version->majorPart(), version->minorPart(), version->otherPart()}),
                     one.parts);
            QCOMPARE(version->description(), u'v' + one.reformatted);
        }
    }

    void compares()
    {
        const std::tuple<QString, QString, int> cases[]{
            {u"1.1"_s, u"1.01"_s, 0}, // precision is ignored
            {u"1.10"_s, u"1.9"_s, 1}, // integers, not decimals
            {u"9.9.9"_s, u"10.0"_s, -1}, {u"1.2.3"_s, u"1.2.4"_s, -1}, {u"1"_s, u"1.0.0"_s, 0},
        };
        for (const auto &[left, right, order] : cases) {
            QCOMPARE(QVVersionInfo_M880::versionInfoWithString(left)->compare(right), order);
            const auto other = QVVersionInfo_M880::versionInfoWithString(left);
            QCOMPARE(QVVersionInfo_M880::versionInfoWithString(right)->compare(*other), -order);
        }
    }
};

QTEST_GUILESS_MAIN(VersionInfoTest)
#include "version_info_test.moc"
