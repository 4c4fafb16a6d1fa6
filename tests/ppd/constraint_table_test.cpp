// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "ppd/constraint_table.h"
#include "tests/support/inline_ppd.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ConstraintTableTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void answersFromEitherSide_data();
    void answersFromEitherSide();
    void tellsConflictableOptions();
    void isEmptyWithoutConstraints();
};

namespace {

const QByteArray body =
    ppdOption("ColorType", {"Auto", "Color", "Mono"}) + ppdOption("Balance", {"0", "1", "2"}) +
    ppdOption("Duplex", {"None", "On"}) + ppdOption("Tray", {"One", "Two"}) +
    ppdConstraint("ColorType Mono", "Balance 1") + ppdConstraint("ColorType Mono", "Balance 1") +
    ppdConstraint("Balance 2", "ColorType Mono") + ppdConstraint("ColorType Mono", "Duplex On") +
    ppdConstraint("Duplex", "Tray Two") + ppdConstraint("ColorType Auto", "Fold\xff Yes");

} // namespace

void ConstraintTableTest::answersFromEitherSide_data()
{
    QTest::addColumn<QStringList>("pairs");
    QTest::addColumn<bool>("forbidden");
    const auto row = [](const char *pairs, bool forbidden) {
        QStringList names = QString::fromLatin1(pairs).split(u' ');
        names.replaceInStrings(u"(none)"_s, QString());
        QTest::newRow(pairs) << names << forbidden;
    };
    row("ColorType Mono Balance 1", true);
    row("ColorType Mono Balance 2", true);
    row("ColorType Mono Duplex On", true);
    row("ColorType Mono Balance 0", false);
    row("ColorType Color Balance 1", false);
    row("ColorType Mono Duplex None", false);
    row("Balance 1 Duplex On", false);
    row("ColorType mono Balance 1", false);
    row("colorType Mono Balance 1", false);
    row("Mono ColorType 1 Balance", false);
    row("Balance Mono ColorType 1", false);
    // A side without a choice is the empty choice and stands for no other.
    row("Duplex (none) Tray Two", true);
    row("Duplex On Tray Two", false);
    row("Duplex None Tray Two", false);
    row("Nowhere Mono Balance 1", false);
}

void ConstraintTableTest::answersFromEitherSide()
{
    QFETCH(QStringList, pairs);
    QFETCH(bool, forbidden);
    const InlinePpd ppd(body);
    const ConstraintTable table(ppd.get());
    QCOMPARE(table.conflicts(pairs[0], pairs[1], pairs[2], pairs[3]), forbidden);
    QCOMPARE(table.conflicts(pairs[2], pairs[3], pairs[0], pairs[1]), forbidden);
}

void ConstraintTableTest::tellsConflictableOptions()
{
    const InlinePpd ppd(body);
    const ConstraintTable table(ppd.get());
    const QString colorType = u"ColorType"_s;
    QCOMPARE(table.conflictableOptions(colorType, u"Mono"_s), (QSet<QString>{u"Balance"_s, u"Duplex"_s}));
    // The option whose name is not valid text is left out, and its line with it.
    QCOMPARE(table.conflictableOptions(colorType, u"Auto"_s), QSet<QString>());
    QCOMPARE(table.conflictableOptions(u"Nowhere"_s, u"Mono"_s), QSet<QString>());
}

void ConstraintTableTest::isEmptyWithoutConstraints()
{
    const InlinePpd ppd(ppdOption("ColorType", {"Auto", "Mono"}));
    QVERIFY(ConstraintTable(ppd.get()).isEmpty());
    QVERIFY(ConstraintTable(nullptr).isEmpty());
    QVERIFY(!ConstraintTable().conflicts(QString(), QString(), QString(), QString()));
}

QTEST_GUILESS_MAIN(ConstraintTableTest)
#include "constraint_table_test.moc"
