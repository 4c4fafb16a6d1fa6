// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ppd/constraint_table.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <memory>
#include <optional>

struct ppd_file_s;

namespace platform {
class Bundle;
class PrintDialogHost;
} // namespace platform
class QVVersionInfo_M880;

extern const QString QVPPDChoiceKey; // "QVPPDChoice"
extern const QString QVPPDTextKey;   // "QVPPDText"
extern const QString QVPPDOptionKey; // "QVPPDOption"
extern const QString QVPPDNameKey;   // "QVPPDName"

// One choice of an option: its keyword in the PPD, and its text, which is null if it is not valid UTF-8.
struct QVPPDChoice_M880
{
    QString choice;
    QString text;

    // The choice dictionary, with exactly the keys QVPPDChoiceKey and QVPPDTextKey.
    QVariantMap toMap() const;
    bool operator==(const QVPPDChoice_M880 &) const = default;
};

// The printer's PPD as strings. Wraps the host's ppd_file_t, which the host opens and closes and which
// outlives this object; marks are set in that record and thus visible to all its users. One per dialog,
// shared through the manager. Options, choices and attributes are looked up as in libcups, ignoring case;
// constraints and lists of keywords are exact. Strings in the PPD are UTF-8; invalid UTF-8 is left out of
// lists, and null elsewhere.
class QVPPD_M880
{
public:
    // Null if there is no host, or neither the host nor its session has a PPD.
    static std::shared_ptr<QVPPD_M880> ppdWithHost(platform::PrintDialogHost *host);
    ~QVPPD_M880();
    QVPPD_M880(const QVPPD_M880 &) = delete;
    QVPPD_M880 &operator=(const QVPPD_M880 &) = delete;

    ppd_file_s *cupsPPD() const { return m_ppd; }
    // May be null: no option or attribute is found then.
    void setCupsPPD(ppd_file_s *ppd) { m_ppd = ppd; }
    // The value of the attribute "FileVersion"; null if the PPD has none.
    const std::shared_ptr<const QVVersionInfo_M880> &version() const { return m_version; }
    // Null if the PPD has no model name.
    const QString &modelname() const { return m_modelname; }
    // The file name that the PPD declares for itself, not the path it was read from; null if there is none.
    QString ppdFilename() const;

    // All option keywords of the top-level groups in PPD order; built once.
    const QStringList &allOptions();
    // Also true for a common prefix: "DCDigit" if the PPD has "DCDigit1".
    bool hasOption(const QString &option) const;
    // Null if the option is missing or has no choices; the same applies to the next two functions.
    std::optional<QStringList> choicesForOption(const QString &option) const;
    // Maps choice keywords to texts. `order`, if not null, receives the keywords in PPD order; it is not
    // changed if the result is null.
    std::optional<QMap<QString, QString>> choicesWithValuesForOptionOrder(const QString &option,
                                                                          QStringList *order) const;
    std::optional<QList<QVPPDChoice_M880>>
    localizedChoicesForOptionWithBundle(const QString &option, const platform::Bundle *bundle) const;
    // Null if the option is missing, or its default is not one of its choices.
    std::optional<QVPPDChoice_M880> defaultChoiceForOption(const QString &option) const;
    // Null if the option is missing or nothing is marked.
    std::optional<QVPPDChoice_M880> markedChoiceForOption(const QString &option) const;
    // Does nothing unless both are strings.
    void markChoiceForOption(const QVariant &choice, const QVariant &option);
    // A null string if nothing is marked. A null bundle means no localisation, also in the next function.
    QString localizedMarkedChoiceForOptionWithBundle(const QString &option,
                                                     const platform::Bundle *bundle) const;
    // A null string if the option is missing.
    QString localizedOptionNameWithBundle(const QString &option, const platform::Bundle *bundle) const;
    // The values of all attributes of that name in PPD order; empty if there are none.
    QStringList valuesForAttribute(const QString &name) const;

    bool optionWithChoiceConflictsWithOptionWithChoice(const QString &option1, const QString &choice1,
                                                       const QString &option2, const QString &choice2) const;
    QSet<QString> conflictableOptionsForOptionWithChoice(const QString &option, const QString &choice) const;
    // The same queries by number; lives as long as this object.
    const ConstraintTable &constraintTable() const { return m_constraints; }
    // Maps the options of the group "InstallableOptions" to their marked choices; null if the PPD has no such
    // group.
    std::optional<QMap<QString, QString>> chosenInstallableOptions() const;

private:
    QVPPD_M880() = default;
    bool initWithHost(platform::PrintDialogHost *host);
    void loadConstraints();

    ppd_file_s *m_ppd = nullptr;
    quint64 m_encoding = 0; // declared but never set: every text is read as UTF-8
    std::shared_ptr<const QVVersionInfo_M880> m_version;
    QString m_modelname;
    ConstraintTable m_constraints;
    std::optional<QStringList> m_allOptions;
};
