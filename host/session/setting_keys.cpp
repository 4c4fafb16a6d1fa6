// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/setting_keys.h"

#include "host/session/page_ranges.h"
#include "platform/exception.h"
#include "platform/key_value_object.h"

#include <QCoreApplication>
#include <QMetaProperty>

#include <algorithm>

namespace host {

namespace {

struct SettingText
{
    Q_DECLARE_TR_FUNCTIONS(SettingText)
};

PrintError badValue(const QString &message)
{
    return {PrintError::Kind::BadValue, message};
}

QString choicesInWords(const PpdOption &option)
{
    QStringList keywords;
    for (const PpdOption::Choice &choice : option.choices)
        keywords.append(choice.keyword);
    if (keywords.isEmpty())
        return SettingText::tr("none");
    bool firstIsNumber = false, lastIsNumber = false;
    (void)option.choices.first().keyword.toInt(&firstIsNumber);
    (void)option.choices.last().keyword.toInt(&lastIsNumber);
    if (firstIsNumber && lastIsNumber && keywords.size() > 2)
        return QStringLiteral("%1 … %2").arg(keywords.first(), keywords.last());
    return keywords.join(QStringLiteral(", "));
}

PrintError noSuchChoice(const PpdOption &option, const QString &choice)
{
    return badValue(SettingText::tr("%1 has no choice “%2”; it has %3.")
                        .arg(option.keyword, choice, choicesInWords(option)));
}

// The object that a property holds, such as the settings of a device within a panel's; null for other values.
platform::KeyValueObject *objectOf(platform::KeyValueObject *owner, const QMetaProperty &property)
{
    return qobject_cast<platform::KeyValueObject *>(qvariant_cast<QObject *>(property.read(owner)));
}

bool isDigits(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
}

// What a value of this key looks like, told by the one it holds.
QString shapeError(const QString &key, const QVariant &value, const QString &given)
{
    if (value.metaType().id() == QMetaType::Bool)
        return SettingText::tr("%1 takes True or False.").arg(key);
    if (value.metaType().id() != QMetaType::QString)
        return SettingText::tr("%1 does not take this value.").arg(key);
    const QString current = value.toString();
    if (isDigits(current))
        return SettingText::tr("%1 takes %2 digits.").arg(key).arg(current.size());
    if (current.size() != given.size())
        return SettingText::tr("%1 takes %2 characters, not %3.")
            .arg(key)
            .arg(current.size())
            .arg(given.size());
    return SettingText::tr("%1 does not take this value.").arg(key);
}

// The options of a panel as they are, to go back to.
class PanelSnapshot
{
public:
    PanelSnapshot(platform::KeyValueObject *object, const QStringList &keywords) : m_object(object)
    {
        for (const QString &keyword : keywords)
            m_values.insert(keyword, object->valueForKey(keyword));
    }
    void putBack()
    {
        for (auto it = m_values.begin(); it != m_values.end(); ++it) {
            if (it.value().isValid() && m_object->valueForKey(it.key()) != it.value())
                m_object->setValueForKey(it.value(), it.key());
        }
    }
    // The first option that now has a choice which the PPD does not know.
    std::optional<PpdOption> strayOption(const PpdDocument &ppd)
    {
        for (auto it = m_values.begin(); it != m_values.end(); ++it) {
            const auto option = ppd.option(it.key());
            if (option && m_object->valueForKey(it.key()) != it.value() &&
                !option->hasChoice(m_object->valueForKey(it.key()).toString()))
                return option;
        }
        return std::nullopt;
    }

private:
    platform::KeyValueObject *m_object;
    QVariantMap m_values;
};

// Whether a key came to hold what it was set to, as far as its type can say.
bool holds(const QVariant &now, const QString &given)
{
    if (now.metaType().id() == QMetaType::QString)
        return now.toString() == given;
    QVariant converted(given);
    return converted.convert(now.metaType()) && converted == now;
}

// Sets a key and looks whether it took the value; says what is wrong, or nothing.
QString trySet(platform::KeyValueObject *object, PanelSnapshot *snapshot, const PpdDocument &ppd,
               const QString &keyPath, const QString &value)
{
    const QVariant before = object->valueForKeyPath(keyPath);
    try {
        object->setValueForKeyPath(value, keyPath);
    } catch (const platform::Exception &exception) {
        const bool isShape =
            exception.name() == platform::Exception::rangeName && !before.toString().isEmpty();
        return isShape ? shapeError(keyPath, before, value)
                       : QStringLiteral("%1: %2").arg(keyPath, exception.reason());
    }
    const auto stray = snapshot->strayOption(ppd);
    if (stray && !isDigits(before.toString()))
        return SettingText::tr("%1 does not take this value: %2 has only %3.")
            .arg(keyPath, stray->keyword, choicesInWords(*stray));
    if (stray || !holds(object->valueForKeyPath(keyPath), value))
        return shapeError(keyPath, before, value);
    return {};
}

} // namespace

QStringList settableKeys(platform::KeyValueObject *object)
{
    QStringList keys;
    const QMetaObject *cls = object->metaObject();
    for (int i = platform::KeyValueObject::staticMetaObject.propertyCount(); i < cls->propertyCount(); ++i) {
        const QMetaProperty property = cls->property(i);
        const QString key = QString::fromUtf8(property.name());
        if (property.isWritable() && property.isStored())
            keys.append(key);
        else if (platform::KeyValueObject *inner = objectOf(object, property))
            for (const QString &innerKey : settableKeys(inner))
                keys.append(key + QLatin1Char('.') + innerKey);
    }
    return keys;
}

bool SettingKeys::set(const QString &key, const QString &value, PrintError *error)
{
    if (GeneralSettings::covers(key) && key != QLatin1String("multiple-document-handling"))
        return setGeneral(key, value, error);
    const int panel = m_session->panelOfSetting(key);
    if (m_session->ppd() && m_session->ppd()->hasOption(key))
        return setOption(key, value, error);
    if (panel >= 0)
        return setOnPanel(panel, key, value, error);
    *error = badValue(SettingText::tr("This printer has no option or setting called “%1”.").arg(key));
    return false;
}

bool SettingKeys::knows(const QString &key) const
{
    return GeneralSettings::covers(key) || (m_session->ppd() && m_session->ppd()->hasOption(key)) ||
           m_session->panelOfSetting(key) >= 0;
}

bool SettingKeys::setGeneral(const QString &key, const QString &value, PrintError *error)
{
    GeneralSettings &general = m_session->general();
    if (key == QLatin1String("copies")) {
        bool ok = false;
        const int copies = value.toInt(&ok);
        if (!ok || copies < 1 || copies > GeneralSettings::maxCopies) {
            *error = badValue(
                SettingText::tr("copies takes a number from 1 to %1.").arg(GeneralSettings::maxCopies));
            return false;
        }
        general.copies = copies;
        return true;
    }
    if (key == QLatin1String("page-ranges")) {
        QString problem;
        const auto pages = normalizedPageRanges(value, &problem);
        if (!pages) {
            *error = badValue(problem);
            return false;
        }
        general.pages = *pages;
        return true;
    }
    const QString lower = value.toLower();
    const bool on =
        lower == QLatin1String("true") || lower == QLatin1String("yes") || lower == QLatin1String("on");
    const bool off =
        lower == QLatin1String("false") || lower == QLatin1String("no") || lower == QLatin1String("off");
    if (!on && !off) {
        *error = badValue(SettingText::tr("%1 takes True or False.").arg(key));
        return false;
    }
    general.collate = on;
    return true;
}

bool SettingKeys::setOption(const QString &keyword, const QString &value, PrintError *error)
{
    const auto option = m_session->ppd()->option(keyword);
    const bool isCustom = value.startsWith(QLatin1String("Custom."));
    const auto choice =
        std::find_if(option->choices.begin(), option->choices.end(), [&](const PpdOption::Choice &c) {
            return c.keyword.compare(value, Qt::CaseInsensitive) == 0;
        });
    if (choice == option->choices.end() && !isCustom) {
        *error = noSuchChoice(*option, value);
        return false;
    }
    const int panel = m_session->panelOfKeyword(option->keyword);
    if (panel >= 0 && !isCustom)
        return setOnPanel(panel, option->keyword, choice->keyword, error);
    if (m_session->markChoice(option->keyword, isCustom ? value : choice->keyword))
        return true;
    *error = noSuchChoice(*option, value);
    return false;
}

bool SettingKeys::setOnPanel(int panel, const QString &keyPath, const QString &value, PrintError *error)
{
    m_session->prepare(panel);
    platform::KeyValueObject *object = m_session->panel(panel)->keyValueObject();
    QString problem;
    try {
        PanelSnapshot snapshot(object, m_session->panelKeywords(panel));
        problem = trySet(object, &snapshot, *m_session->ppd(), keyPath, value);
        if (!problem.isEmpty())
            snapshot.putBack();
    } catch (const platform::Exception &exception) {
        problem = QStringLiteral("%1: %2").arg(keyPath, exception.reason());
    }
    if (!problem.isEmpty()) {
        *error = badValue(problem);
        return false;
    }
    m_session->noteChosen({keyPath, value});
    m_session->save();
    const QString reason = m_session->panel(panel)->unavailableReason();
    if (keyPath.contains(QLatin1Char('.')) && !reason.isNull())
        m_session->addNotice(SettingText::tr("%1 is not sent with the job: %2").arg(keyPath, reason));
    return true;
}

QList<std::pair<QString, QString>> SettingKeys::panelKeys() const
{
    const QString general = QStringLiteral("general");
    QList<std::pair<QString, QString>> keys = {{general, QStringLiteral("copies")},
                                               {general, QStringLiteral("collate")},
                                               {general, QStringLiteral("page-ranges")}};
    for (int i = 0; i < m_session->panelCount(); ++i) {
        for (const QString &key : settableKeys(m_session->panel(i)->keyValueObject()))
            keys.append({m_session->panel(i)->panelKind(), key});
    }
    return keys;
}

} // namespace host
