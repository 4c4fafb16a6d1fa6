// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/ppd_popup_button.h"
#include "platform/bundle.h"
#include "tests/panelkit/sample_panel.h"
#include "tests/support/test_bundle.h"

#include <QAbstractItemView>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

const QString colorType = u"ColorType"_s;
const QString balance = u"Balance"_s;
const QString duplex = u"Duplex"_s;
const QString foreign = u"Foreign"_s;
const QStringList keys{colorType, balance, duplex};

const QByteArray ppdBody = ppdOption("ColorType/Colour <u>Type</u>",
                                     {"Auto/Automatic", "Color/Colour", "Mono/Black & <i>White</i>"}) +
                           ppdOption("Balance", {"0", "1", "2"}) + ppdOption("Duplex", {"None", "On"}) +
                           ppdOption("Foreign", {"No", "Yes"}) +
                           ppdConstraint("ColorType Mono", "Balance 1") +
                           ppdConstraint("Balance 2", "ColorType Mono") +
                           ppdConstraint("Balance 1", "Duplex On") + ppdConstraint("Balance 1", "Foreign No");

// A pop-up of a panel that does not support the option "Foreign".
struct Setting
{
    explicit Setting(const QString &option, const QByteArray &body = ppdBody)
        : dialog(body), panel(dialog, keys)
    {
        popUp.setDataSourceAndOptionName(&panel, option);
    }
    void set(const QString &option, const char *choice)
    {
        panel.setValueForKey(QString::fromLatin1(choice), option);
    }
    QString enabled() const
    {
        QString marks;
        for (int index = 0; index < popUp.count(); ++index)
            marks += popUp.isItemEnabled(index) ? u'+' : u'-';
        return marks;
    }

    SampleDialog dialog;
    SamplePanel panel;
    QVPopUpButton_M880 popUp;
};

} // namespace

class PpdPopUpButtonTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void followsAndSetsTheValue()
    {
        Setting s(colorType);
        QCOMPARE(s.popUp.count(), 3);
        const QString text = u"Black & <i>White</i>"_s;
        QCOMPARE(s.popUp.itemText(2), text);
        QCOMPARE(s.popUp.itemData(2).toMap(), (QVPPDChoice_M880{u"Mono"_s, text}).toMap());
        QCOMPARE(s.popUp.selectedIndex(), QVariant(0));
        s.set(colorType, "Mono");
        QCOMPARE(s.popUp.currentIndex(), 2);
        s.popUp.setCurrentIndex(1);
        QCOMPARE(s.panel.valueForKey(colorType), QVariant(u"Color"_s));
        s.set(colorType, "Sepia"); // not among the items
        QVERIFY(!s.popUp.selectedIndex().isValid());
        QCOMPARE(s.panel.valueForKey(colorType), QVariant(u"Sepia"_s));
    }

    void greysOutWhatConflicts()
    {
        Setting s(balance, ppdBody + ppdConstraint("Balance 0", "Balance 2"));
        const auto &center = s.dialog.manager->notificationCenter();
        QCOMPARE(s.popUp.conflictableOptions(), (QSet<QString>{balance, colorType, duplex, foreign}));
        QCOMPARE(center->registrationCount(&s.popUp), 4);
        s.set(balance, "2"); // its own option: items are not updated
        QCOMPARE(s.enabled(), u"+++"_s);
        s.set(duplex, "None");
        QCOMPARE(s.enabled(), u"-++"_s);
        s.set(balance, "1");
        s.set(colorType, "Mono");
        QCOMPARE(s.enabled(), u"+--"_s);
        QCOMPARE(s.popUp.currentIndex(), 1); // greyed, but still selected
        s.set(duplex, "On");
        s.set(colorType, "Auto");
        QCOMPARE(s.enabled(), u"+-+"_s);
        s.set(duplex, "None");
        QCOMPARE(s.enabled(), u"+++"_s); // "Foreign" does not belong to the panel, so it is ignored
        const Setting free(balance, ppdOption("Balance", {"0", "1"}));
        QCOMPARE(free.dialog.manager->notificationCenter()->registrationCount(&free.popUp), 0);
    }

    void saysWhyAChoiceIsGreyed()
    {
        TestBundle files;
        files.writeStrings(u"de"_s, u"QVPopUpButton_M880"_s,
                           {{u"Not available while \"%1\" is \"%2\"."_s, u"%1 steht auf %2."_s}});
        Setting s(balance);
        s.set(colorType, "Mono");
        const QString name = u"Colour <u>Type</u>"_s;
        const QString text = u"Black & <i>White</i>"_s;
        const auto toolTip = [&s] {
            const QString tip = s.popUp.itemData(1, Qt::ToolTipRole).toString();
            return QTextDocumentFragment::fromHtml(tip).toPlainText();
        };
        const QString english = u"Not available while \"%1\" is \"%2\"."_s.arg(name, text);
        QVERIFY(Qt::mightBeRichText(s.popUp.itemData(1, Qt::ToolTipRole).toString()));
        QCOMPARE(toolTip(), english);
        QCOMPARE(s.popUp.itemData(1, Qt::AccessibleDescriptionRole).toString(), english);
        QVERIFY(s.popUp.itemData(0, Qt::ToolTipRole).toString().isEmpty());

        s.dialog.manager->setBundle(files.open(QLocale(QLocale::German)));
        s.set(colorType, "Auto");
        s.set(colorType, "Mono");
        QCOMPARE(toolTip(), u"%1 steht auf %2."_s.arg(name, text));
        s.set(colorType, "Auto");
        QCOMPARE(toolTip(), QString());
    }

    void isChosenFromByKeyboardAndMouse()
    {
        Setting s(balance);
        s.set(duplex, "On");
        s.popUp.show();
        QTest::keyClick(&s.popUp, Qt::Key_Down); // skips the greyed item
        QCOMPARE(s.panel.valueForKey(balance), QVariant(u"2"_s));

        const auto click = [&s](int row) {
            s.popUp.showPopup();
            QAbstractItemView *list = s.popUp.view();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualRect(list->model()->index(row, 0)).topLeft() + QPoint(5, 5));
        };
        click(1); // greyed
        QCOMPARE(s.panel.valueForKey(balance), QVariant(u"2"_s));
        click(0);
        QCOMPARE(s.panel.valueForKey(balance), QVariant(u"0"_s));

        s.popUp.showPopup();
        QAbstractItemView *list = s.popUp.view();
        QTest::keyClick(list, Qt::Key_Down); // moves to the greyed item, which shows its reason
        QCOMPARE(list->currentIndex().row(), 1);
        QVERIFY(!list->currentIndex().data(Qt::AccessibleDescriptionRole).toString().isEmpty());
        QVERIFY(QToolTip::text().contains(u"Not available while"_s));
        QTest::keyClick(list, Qt::Key_Return); // does not select it
        QCOMPARE(s.panel.valueForKey(balance), QVariant(u"0"_s));
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(s.panel.valueForKey(balance), QVariant(u"2"_s));
    }

    void turnsWithTheWheelOnlyWithFocus()
    {
        Setting s(colorType);
        s.popUp.show();
        QVERIFY(QTest::qWaitForWindowActive(&s.popUp));
        const auto turn = [&s] {
            QWheelEvent event(QPointF(5, 5), s.popUp.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&s.popUp, &event);
            return event.isAccepted();
        };
        s.popUp.clearFocus();
        QVERIFY(!turn());
        QCOMPARE(s.popUp.currentIndex(), 0);
        s.popUp.setFocus();
        QVERIFY(turn());
        QCOMPARE(s.popUp.currentIndex(), 1);
    }

    void isRebuiltAndOutlivesItsPanel()
    {
        Setting s(balance);
        s.set(colorType, "Mono");
        s.popUp.setDataSourceAndOptionName(&s.panel, duplex);
        QCOMPARE(s.popUp.count(), 2);
        QCOMPARE(s.popUp.conflictableOptions(), QSet<QString>{balance});
        QCOMPARE(s.dialog.manager->notificationCenter()->registrationCount(&s.popUp), 4);
        s.set(balance, "1");
        QCOMPARE(s.enabled(), u"+-"_s);
        s.popUp.setCurrentIndex(1);
        QCOMPARE(s.panel.valueForKey(duplex), QVariant(u"On"_s));
        QCOMPARE(s.panel.valueForKey(balance), QVariant(u"1"_s));
        s.popUp.setDataSourceAndOptionName(nullptr, duplex);
        QCOMPARE(s.popUp.count(), 0);
        QCOMPARE(s.panel.valueForKey(duplex), QVariant(u"On"_s));

        auto other = std::make_unique<SamplePanel>(s.dialog, keys);
        s.popUp.setDataSourceAndOptionName(other.get(), balance);
        other.reset();
        s.dialog.manager->notificationCenter()->postNotification(colorType, nullptr);
        s.popUp.setCurrentIndex(1);
        QCOMPARE(s.popUp.currentIndex(), 1);
    }
};

QTEST_MAIN(PpdPopUpButtonTest)
#include "ppd_popup_button_test.moc"
