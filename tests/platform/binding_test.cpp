// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/platform/sample_model.h"

#include "platform/binding.h"

#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSlider>
#include <QTest>
#include <QVBoxLayout>

using platform::Binding;
using namespace Qt::StringLiterals;

namespace {

// Converts numbers to the text of a control, and back if it is reversible.
class TextTransformer : public platform::ValueTransformer
{
public:
    explicit TextTransformer(bool reverses) : m_reverses(reverses) {}
    QMetaType transformedValueClass() const override { return QMetaType(QMetaType::QString); }
    bool allowsReverseTransformation() const override { return m_reverses; }
    QVariant transformedValue(const QVariant &value) const override { return u"<%1"_s.arg(value.toInt()); }
    QVariant reverseTransformedValue(const QVariant &value) const override
    {
        return value.toString().remove(u'<');
    }

private:
    bool m_reverses;
};

} // namespace

class BindingTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void sliderAndKeyFollowEachOther();
    void refusedValueGoesBack();
    void transformerDecidesTheDirection();
    void nilAndUnfitValues();
    void stateBeforeTheWindowShows();
    void replaceAndUnbind();
    void lifetimes();
};

void BindingTest::sliderAndKeyFollowEachOther()
{
    SampleModel model;
    model.setNumber(30);
    QSlider first(Qt::Horizontal);
    QSlider second;
    first.setPageStep(10);
    second.setMaximum(50);
    QVERIFY(Binding::bind(&first, u"value"_s, &model, u"number"_s)->isTwoWay());
    Binding::bind(&second, u"value"_s, &model, u"number"_s);
    QCOMPARE(first.value(), 30);

    const int before = model.sets();
    QTest::keyClick(&first, Qt::Key_PageUp);
    QCOMPARE(model.number(), 40);
    QCOMPARE(second.value(), 40);
    QCOMPARE(model.sets(), before + 1); // no feedback
    model.setNumber(70);
    QCOMPARE(first.value(), 70);
    QCOMPARE(second.value(), 50);
    QCOMPARE(model.number(), 70); // values that a slider cannot show are kept
}

void BindingTest::refusedValueGoesBack()
{
    SampleModel model;
    model.setNumber(9);
    QSlider slider;
    slider.setRange(0, 200);
    Binding::bind(&slider, u"value"_s, &model, u"number"_s);
    QTest::ignoreMessage(QtWarningMsg, "RangeException: more than 100");
    QTest::keyClick(&slider, Qt::Key_End);
    QCOMPARE(model.number(), 9);
    QCOMPARE(slider.value(), 9);
}

void BindingTest::transformerDecidesTheDirection()
{
    SampleModel model;
    model.setNumber(3);
    QLineEdit oneWay;
    QLineEdit twoWay;
    QLabel label; // QLabel's text has no notify signal
    const auto bind = [&model](QWidget *target, bool reverses) {
        return Binding::bind(target, u"text"_s, &model, u"number"_s,
                             std::make_shared<TextTransformer>(reverses));
    };
    QVERIFY(!bind(&oneWay, false)->isTwoWay());
    QVERIFY(bind(&twoWay, true)->isTwoWay());
    QVERIFY(!bind(&label, true)->isTwoWay());
    QCOMPARE(oneWay.text(), u"<3"_s);
    QTest::keyClick(&oneWay, Qt::Key_8);
    QCOMPARE(model.number(), 3);
    QTest::keyClick(&twoWay, Qt::Key_9);
    QCOMPARE(model.number(), 39);
    QCOMPARE(label.text(), u"<39"_s);
}

void BindingTest::nilAndUnfitValues()
{
    SampleModel model;
    QLabel label(u"before"_s);
    QSlider slider;
    slider.setValue(20);
    Binding::bind(&label, u"text"_s, &model, u"anything"_s);
    Binding::bind(&slider, u"value"_s, &model, u"anything"_s);
    QCOMPARE(label.text(), QString());
    QCOMPARE(slider.value(), 0);
    model.setAnything(3);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"anything.*QString.*value"_s));
    model.setAnything(u"x"_s);
    QCOMPARE(slider.value(), 3);
}

void BindingTest::stateBeforeTheWindowShows()
{
    SampleModel model;
    QWidget window;
    window.setEnabled(false);
    auto *column = new QVBoxLayout(&window);
    QLabel child(&window);
    QLabel adopted; // gets its parent later
    for (QLabel *label : {&child, &adopted}) {
        Binding::bind(label, u"visible"_s, &model, u"flag"_s);
        Binding::bind(label, u"enabled"_s, &model, u"flag"_s);
    }
    model.setFlag(true);
    QVERIFY(!adopted.isVisible()); // not shown as a separate window
    model.setFlag(false);
    window.setEnabled(true);
    QVERIFY(!child.isEnabled());
    model.setFlag(true);
    column->addWidget(&child);
    column->addWidget(&adopted);
    window.show();
    QVERIFY(QTest::qWaitFor([&] { return child.isVisible() && adopted.isVisible(); }));
    model.setFlag(false);
    QVERIFY(!child.isVisible() && !adopted.isVisible());
}

void BindingTest::replaceAndUnbind()
{
    SampleModel old;
    SampleModel current;
    QSlider slider;
    Binding::bind(&slider, u"value"_s, &old, u"number"_s);
    Binding *binding = Binding::bind(&slider, u"value"_s, &current, u"number"_s);
    QCOMPARE(Binding::infoForBinding(&slider, u"value"_s), binding);
    old.setNumber(3);
    QCOMPARE(slider.value(), 0);
    Binding::unbind(&slider, u"value"_s);
    Binding::unbind(&slider, u"value"_s);
    slider.setValue(8);
    QCOMPARE(current.number(), 0);
}

void BindingTest::lifetimes()
{
    auto model = std::make_unique<SampleModel>();
    auto slider = std::make_unique<QSlider>();
    QSlider survivor;
    Binding::bind(slider.get(), u"value"_s, model.get(), u"number"_s);
    Binding::bind(&survivor, u"value"_s, model.get(), u"number"_s);
    slider.reset();
    model->setNumber(2);
    QCOMPARE(survivor.value(), 2);
    model.reset();
    QTest::keyClick(&survivor, Qt::Key_End);
    QCOMPARE(survivor.value(), survivor.maximum());
    QVERIFY(!Binding::bind(&survivor, u"value"_s, nullptr, u"number"_s)->observedObject());
}

QTEST_MAIN(BindingTest)
#include "binding_test.moc"
