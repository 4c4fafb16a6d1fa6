// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "ppd/ppd_model.h"

#include "platform/bundle.h"
#include "platform/print_dialog.h"
#include "ppd/utf8.h"
#include "ppd/version_info.h"

#include <cups/ppd.h>

#include <span>

// The PPD interface of libcups is deprecated, but this family's printers have no other description.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

const QString QVPPDChoiceKey = QStringLiteral("QVPPDChoice");
const QString QVPPDTextKey = QStringLiteral("QVPPDText");
const QString QVPPDOptionKey = QStringLiteral("QVPPDOption");
const QString QVPPDNameKey = QStringLiteral("QVPPDName");

namespace {

// libcups truncates names to PPD_MAX_NAME before a look-up, and would find the record of a shorter name.
bool isPossibleName(const QByteArray &name)
{
    return name.size() < PPD_MAX_NAME && !name.contains('\0');
}

ppd_option_t *findOption(ppd_file_t *ppd, const QString &option)
{
    const QByteArray name = option.toUtf8();
    return ppd && isPossibleName(name) ? ppdFindOption(ppd, name.constData()) : nullptr;
}

ppd_choice_t *findMarkedChoice(ppd_file_t *ppd, const QString &option)
{
    const ppd_option_t *found = findOption(ppd, option);
    return found ? ppdFindMarkedChoice(ppd, found->keyword) : nullptr;
}

std::span<const ppd_group_t> groups(const ppd_file_t *ppd)
{
    return ppd && ppd->num_groups > 0 ? std::span(ppd->groups, size_t(ppd->num_groups))
                                      : std::span<ppd_group_t>();
}

std::span<ppd_option_t> options(const ppd_group_t &group)
{
    return group.num_options > 0 ? std::span(group.options, size_t(group.num_options))
                                 : std::span<ppd_option_t>();
}

std::span<const ppd_choice_t> choices(const ppd_option_t *option)
{
    return option && option->num_choices > 0 ? std::span(option->choices, size_t(option->num_choices))
                                             : std::span<ppd_choice_t>();
}

// Null if there is no record or its keyword is not valid UTF-8.
std::optional<QVPPDChoice_M880> choiceFromRecord(const ppd_choice_t *record)
{
    if (!record)
        return std::nullopt;
    QVPPDChoice_M880 choice{stringFromUtf8(record->choice), stringFromUtf8(record->text)};
    return choice.choice.isNull() ? std::nullopt : std::optional(choice);
}

// Null if neither the bundle nor the PPD has a text. The bundle alone would return the key.
QString localizedChoiceText(const QString &option, const QString &choice, const QString &text,
                            const platform::Bundle *bundle)
{
    if (!bundle)
        return text;
    const QString key = option + u':' + choice;
    const QString found = bundle->localizedStringForKey(key, text);
    return text.isNull() && found == key ? QString() : found;
}

} // namespace

QVariantMap QVPPDChoice_M880::toMap() const
{
    return {{QVPPDChoiceKey, choice}, {QVPPDTextKey, text}};
}

std::shared_ptr<QVPPD_M880> QVPPD_M880::ppdWithHost(platform::PrintDialogHost *host)
{
    std::shared_ptr<QVPPD_M880> ppd(new QVPPD_M880);
    if (!ppd->initWithHost(host))
        return nullptr;
    return ppd;
}

QVPPD_M880::~QVPPD_M880() = default;

bool QVPPD_M880::initWithHost(platform::PrintDialogHost *host)
{
    if (!host)
        return false;
    ppd_file_t *ppd = host->ppdFile();
    if (!ppd)
        GetPPDRefFromSession(host->printSession(), &ppd);
    if (!ppd)
        return false;
    setCupsPPD(ppd);
    if (const ppd_attr_t *fileVersion = ppdFindAttr(ppd, "FileVersion", nullptr))
        m_version = QVVersionInfo_M880::versionInfoWithString(stringFromUtf8(fileVersion->value));
    m_modelname = stringFromUtf8(ppd->modelname);
    loadConstraints();
    return true;
}

void QVPPD_M880::loadConstraints()
{
    m_constraints = ConstraintTable(m_ppd);
}

QString QVPPD_M880::ppdFilename() const
{
    return m_ppd ? stringFromUtf8(m_ppd->pcfilename) : QString();
}

const QStringList &QVPPD_M880::allOptions()
{
    if (!m_allOptions) {
        m_allOptions.emplace();
        for (const ppd_group_t &group : groups(m_ppd)) {
            for (const ppd_option_t &option : options(group)) {
                const QString keyword = stringFromUtf8(option.keyword);
                if (!keyword.isNull())
                    m_allOptions->append(keyword);
            }
        }
    }
    return *m_allOptions;
}

bool QVPPD_M880::hasOption(const QString &option) const
{
    return findOption(m_ppd, option) || findOption(m_ppd, option + u'1');
}

std::optional<QStringList> QVPPD_M880::choicesForOption(const QString &option) const
{
    const auto records = choices(findOption(m_ppd, option));
    if (records.empty())
        return std::nullopt;
    QStringList keywords;
    for (const ppd_choice_t &record : records) {
        const QString keyword = stringFromUtf8(record.choice);
        if (!keyword.isNull())
            keywords.append(keyword);
    }
    return keywords;
}

std::optional<QMap<QString, QString>> QVPPD_M880::choicesWithValuesForOptionOrder(const QString &option,
                                                                                  QStringList *order) const
{
    const auto records = choices(findOption(m_ppd, option));
    if (records.empty())
        return std::nullopt;
    QMap<QString, QString> texts;
    QStringList keywords;
    for (const ppd_choice_t &record : records) {
        const auto choice = choiceFromRecord(&record);
        if (choice && !choice->text.isNull()) {
            texts.insert(choice->choice, choice->text);
            keywords.append(choice->choice);
        }
    }
    if (order)
        *order = keywords;
    return texts;
}

std::optional<QList<QVPPDChoice_M880>>
QVPPD_M880::localizedChoicesForOptionWithBundle(const QString &option, const platform::Bundle *bundle) const
{
    const auto records = choices(findOption(m_ppd, option));
    if (records.empty())
        return std::nullopt;
    QList<QVPPDChoice_M880> result;
    for (const ppd_choice_t &record : records) {
        const auto choice = choiceFromRecord(&record);
        const QString text =
            choice ? localizedChoiceText(option, choice->choice, choice->text, bundle) : QString();
        if (!text.isNull())
            result.append({choice->choice, text});
    }
    return result;
}

std::optional<QVPPDChoice_M880> QVPPD_M880::defaultChoiceForOption(const QString &option) const
{
    ppd_option_t *found = findOption(m_ppd, option);
    return found ? choiceFromRecord(ppdFindChoice(found, found->defchoice)) : std::nullopt;
}

std::optional<QVPPDChoice_M880> QVPPD_M880::markedChoiceForOption(const QString &option) const
{
    return choiceFromRecord(findMarkedChoice(m_ppd, option));
}

void QVPPD_M880::markChoiceForOption(const QVariant &choice, const QVariant &option)
{
    if (choice.typeId() != QMetaType::QString || option.typeId() != QMetaType::QString)
        return;
    if (const ppd_option_t *found = findOption(m_ppd, option.toString()))
        ppdMarkOption(m_ppd, found->keyword, choice.toString().toUtf8().constData());
}

QString QVPPD_M880::localizedMarkedChoiceForOptionWithBundle(const QString &option,
                                                             const platform::Bundle *bundle) const
{
    const auto marked = markedChoiceForOption(option);
    return marked ? localizedChoiceText(option, marked->choice, marked->text, bundle) : QString();
}

QString QVPPD_M880::localizedOptionNameWithBundle(const QString &option, const platform::Bundle *bundle) const
{
    const ppd_option_t *found = findOption(m_ppd, option);
    if (!found)
        return {};
    const QString text = stringFromUtf8(found->text);
    return bundle ? bundle->localizedStringForKey(option, text) : text;
}

QStringList QVPPD_M880::valuesForAttribute(const QString &name) const
{
    const QByteArray bytes = name.toUtf8();
    QStringList values;
    if (!m_ppd || !isPossibleName(bytes))
        return values;
    for (const ppd_attr_t *attribute = ppdFindAttr(m_ppd, bytes.constData(), nullptr); attribute;
         attribute = ppdFindNextAttr(m_ppd, bytes.constData(), nullptr)) {
        const QString value = stringFromUtf8(attribute->value);
        if (!value.isNull())
            values.append(value);
    }
    return values;
}

bool QVPPD_M880::optionWithChoiceConflictsWithOptionWithChoice(const QString &option1, const QString &choice1,
                                                               const QString &option2,
                                                               const QString &choice2) const
{
    return m_constraints.conflicts(option1, choice1, option2, choice2);
}

QSet<QString> QVPPD_M880::conflictableOptionsForOptionWithChoice(const QString &option,
                                                                 const QString &choice) const
{
    return m_constraints.conflictableOptions(option, choice);
}

std::optional<QMap<QString, QString>> QVPPD_M880::chosenInstallableOptions() const
{
    for (const ppd_group_t &group : groups(m_ppd)) {
        if (qstrcmp(group.name, "InstallableOptions") != 0)
            continue;
        QMap<QString, QString> chosen;
        for (const ppd_option_t &option : options(group)) {
            const QString keyword = stringFromUtf8(option.keyword);
            const auto marked = choiceFromRecord(ppdFindMarkedChoice(m_ppd, option.keyword));
            if (!keyword.isNull() && marked)
                chosen.insert(keyword, marked->choice);
        }
        return chosen;
    }
    return std::nullopt;
}
