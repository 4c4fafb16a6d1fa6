// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/platform/sample_model.h"

#include "platform/key_path_observer.h"
#include "platform/notification_center.h"

#include <QSignalSpy>
#include <QTest>

using platform::Exception;
using platform::KeyValueObject;
using namespace Qt::StringLiterals;

namespace {

// Separate classes, so that the dependent keys of one test do not affect others.
class DependentModel : public SampleModel
{
    Q_OBJECT
};

class FurtherModel : public DependentModel
{
    Q_OBJECT
};

class RecordingObserver : public KeyValueObject
{
    Q_OBJECT
public:
    void observeValueForKeyPathOfObjectChangeContext(const QString &keyPath, KeyValueObject *object,
                                                     const QVariantMap &change, QObject *context) override
    {
        m_seen.append(change[platform::NSKeyValueChangeNewKey]);
        m_context = context;
        if (m_leaves)
            object->removeObserverForKeyPath(this, keyPath);
    }
    QVariantList m_seen;
    QObject *m_context = nullptr;
    bool m_leaves = false; // removes itself as an observer on the next notification
};

// The keys announced when a model's number changes.
QStringList announced(SampleModel &&model)
{
    QStringList before;
    QStringList after;
    QObject::connect(&model, &KeyValueObject::valueWillChange, [&](const QString &key) { before += key; });
    QObject::connect(&model, &KeyValueObject::valueDidChange, [&](const QString &key) { after += key; });
    model.setNumber(1);
    return before == after ? after : QStringList{u"different"_s};
}

} // namespace

class KeyValueObjectTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void convertsValuesAndNil();
    void refuses();
    void keyPaths();
    void dependentKeysAreAnnounced();
    void observers();
    void keyPathObserverFollowsReplacedAndDestroyedObjects();
};

void KeyValueObjectTest::convertsValuesAndNil()
{
    SampleModel child;
    SampleModel model;
    model.setText(u"before"_s);
    model.setAnything(1);
    model.setChild(&child);
    model.setValueForKey(u"7"_s, u"number"_s);
    model.setValueForKey(QVariant(), u"text"_s);
    model.setValueForKey(QVariant(), u"anything"_s);
    model.setValueForKey(QVariant(), u"child"_s);
    QCOMPARE(model.valueForKey(u"number"_s), QVariant(7));
    QVERIFY(model.text().isNull() && !model.valueForKey(u"anything"_s).isValid() && !model.child());
}

void KeyValueObjectTest::refuses()
{
    SampleModel child;
    SampleModel model;
    model.setChild(&child);
    QSignalSpy changes(&model, &KeyValueObject::valueDidChange);
    const auto problem = [&model](const QString &keyPath, const QVariant &value) {
        try {
            model.setValueForKeyPath(value, keyPath);
        } catch (const Exception &exception) {
            return exception.description().replace(u"Exception: SampleModel: "_s, u": "_s);
        }
        return QString();
    };
    QCOMPARE(problem(u"numbr"_s, 1), uR"(UndefinedKey: undefined key "numbr")"_s);
    QCOMPARE(problem(u"child."_s, 1), uR"(UndefinedKey: undefined key "")"_s);
    QCOMPARE(problem(u"fixed"_s, 1), uR"(UndefinedKey: read-only key "fixed")"_s);
    QCOMPARE(problem(u"flag"_s, {}), uR"(InvalidArgument: key "flag" takes bool, not this null)"_s);
    QCOMPARE(problem(u"child"_s, 1), uR"(InvalidArgument: key "child" takes SampleModel*, not this int)"_s);
    for (const QString &key : {u"number"_s, u"stranger"_s}) {
        const QString reason = u"UndefinedKey: no object with keys of its own under key \"%1\""_s;
        QCOMPARE(problem(key + u".text"_s, 1), reason.arg(key));
    }
    QCOMPARE(changes.count(), 0);
}

void KeyValueObjectTest::keyPaths()
{
    SampleModel leaf;
    SampleModel middle;
    SampleModel root;
    root.setChild(&middle);
    root.setValueForKeyPath(6, u"child.child.number"_s);
    QVERIFY(!root.valueForKeyPath(u"child.child.number"_s).isValid());
    middle.setChild(&leaf);
    root.setValueForKeyPath(5, u"child.child.number"_s);
    QCOMPARE(leaf.number(), 5);
    QCOMPARE(root.valueForKeyPath(u"child.child.number"_s), QVariant(5));
}

void KeyValueObjectTest::dependentKeysAreAnnounced()
{
    const auto depend = [](const QMetaObject &cls, const QString &key, const QString &dependent) {
        KeyValueObject::setKeysTriggerChangeNotificationsForDependentKey(&cls, {key}, dependent);
    };
    depend(DependentModel::staticMetaObject, u"number"_s, u"flag"_s);
    depend(FurtherModel::staticMetaObject, u"flag"_s, u"text"_s);
    depend(FurtherModel::staticMetaObject, u"text"_s, u"number"_s); // a cycle
    QCOMPARE(announced(SampleModel()), (QStringList{u"number"_s}));
    QCOMPARE(announced(DependentModel()), (QStringList{u"number"_s, u"flag"_s}));
    QCOMPARE(announced(FurtherModel()), (QStringList{u"number"_s, u"flag"_s, u"text"_s}));
}

void KeyValueObjectTest::observers()
{
    auto model = std::make_unique<SampleModel>();
    RecordingObserver observer;
    QObject context;
    model->addObserverForKeyPath(&observer, u"number"_s, &context);
    {
        RecordingObserver shortLived;
        model->addObserverForKeyPath(&shortLived, u"number"_s, nullptr);
    }
    model->setNumber(1);
    model->setFlag(true);
    model->removeObserverForKeyPath(&observer, u"flag"_s);
    model->setNumber(2);
    QCOMPARE(observer.m_seen, (QVariantList{1, 2}));
    QCOMPARE(observer.m_context, &context);

    observer.m_leaves = true;
    model->setNumber(3);
    model->setNumber(4);
    QCOMPARE(observer.m_seen, (QVariantList{1, 2, 3}));
}

void KeyValueObjectTest::keyPathObserverFollowsReplacedAndDestroyedObjects()
{
    SampleModel root;
    auto first = std::make_unique<SampleModel>();
    SampleModel second;
    platform::KeyPathObserver observer(&root, u"child.number"_s);
    QSignalSpy changed(&observer, &platform::KeyPathObserver::changed);
    const auto noticed = [&changed] {
        return std::exchange(static_cast<QList<QVariantList> &>(changed), {}).size();
    };

    root.setChild(first.get());
    QCOMPARE(noticed(), 1);
    first->setNumber(1);
    QCOMPARE(noticed(), 1);
    first->setFlag(true);
    root.setNumber(2); // the same key on another level
    QCOMPARE(noticed(), 0);

    root.setChild(&second);
    QCOMPARE(noticed(), 1);
    first->setNumber(2);
    QCOMPARE(noticed(), 0);
    second.setNumber(2);
    QCOMPARE(noticed(), 1);

    root.setChild(first.get());
    first.reset();
    QCOMPARE(noticed(), 2);
    QVERIFY(!root.valueForKeyPath(u"child.number"_s).isValid());
}

QTEST_GUILESS_MAIN(KeyValueObjectTest)
#include "key_value_object_test.moc"
