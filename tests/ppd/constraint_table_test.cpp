// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "ppd/constraint_table.h"
#include "tests/support/inline_ppd.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray body =
    ppdOption("ColorType", {"Auto", "Color", "Mono"}) + ppdOption("Balance", {"0", "1", "2"}) +
    ppdOption("Duplex", {"None", "On"}) + ppdOption("Tray", {"One", "Two"}) +
    ppdConstraint("ColorType Mono", "Balance 1") + ppdConstraint("ColorType Mono", "Balance 1") +
    ppdConstraint("Balance 2", "ColorType Mono") + ppdConstraint("ColorType Mono", "Duplex On") +
    ppdConstraint("Duplex", "Tray Two") + ppdConstraint("ColorType Auto", "Fold\xff Yes");

} // namespace

class ConstraintTableTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void answersFromEitherSide_data()
    {
        QTest::addColumn<bool>("forbidden");
        QTest::newRow("ColorType Mono Balance 1") << true;
        QTest::newRow("ColorType Mono Balance 2") << true;
        QTest::newRow("ColorType Mono Duplex On") << true;
        QTest::newRow("ColorType Mono Balance 0") << false;
        QTest::newRow("ColorType Color Balance 1") << false;
        QTest::newRow("Balance 1 Duplex On") << false;
        QTest::newRow("ColorType mono Balance 1") << false;
        QTest::newRow("colorType Mono Balance 1") << false;
        QTest::newRow("Mono ColorType 1 Balance") << false;
        // A side without a choice is the empty choice and represents no other.
        QTest::newRow("Duplex  Tray Two") << true;
        QTest::newRow("Duplex On Tray Two") << false;
        QTest::newRow("Nowhere Mono Balance 1") << false;
    }

    void answersFromEitherSide()
    {
        QFETCH(const bool, forbidden);
        const QStringList names = QString::fromLatin1(QTest::currentDataTag()).split(u' ');
        const InlinePpd ppd(body);
        const ConstraintTable table(ppd.get());
        QCOMPARE(table.conflicts(names[0], names[1], names[2], names[3]), forbidden);
        QCOMPARE(table.conflicts(names[2], names[3], names[0], names[1]), forbidden);
    }

    void tellsConflictableOptions()
    {
        const InlinePpd ppd(body);
        const ConstraintTable table(ppd.get());
        const QString colorType = u"ColorType"_s;
        QCOMPARE(table.conflictableOptions(colorType, u"Mono"_s), (QSet<QString>{u"Balance"_s, u"Duplex"_s}));
        // The option whose name is not valid UTF-8 is left out, together with its line.
        QCOMPARE(table.conflictableOptions(colorType, u"Auto"_s), QSet<QString>());
        QCOMPARE(table.conflictableOptions(u"Nowhere"_s, u"Mono"_s), QSet<QString>());
        // A null choice is not the empty one.
        QVERIFY(table.conflicts(u"Duplex"_s, u""_s, u"Tray"_s, u"Two"_s));
        QVERIFY(!table.conflicts(u"Duplex"_s, QString(), u"Tray"_s, u"Two"_s));
        QVERIFY(ConstraintTable(InlinePpd(ppdOption("ColorType", {"Auto"})).get()).isEmpty());
        QVERIFY(ConstraintTable(nullptr).isEmpty());
    }
};

QTEST_GUILESS_MAIN(ConstraintTableTest)
#include "constraint_table_test.moc"
