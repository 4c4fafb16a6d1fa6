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

// One choice of an option: its keyword in the PPD and the text a user reads, null when that is not valid
// UTF-8.
struct QVPPDChoice_M880
{
    QString choice;
    QString text;

    // The choice dictionary, with exactly the keys QVPPDChoiceKey and QVPPDTextKey.
    QVariantMap toMap() const;
    static QVPPDChoice_M880 fromMap(const QVariantMap &map);
    bool operator==(const QVPPDChoice_M880 &) const = default;
};

// The printer's PPD as strings. Wraps the host's ppd_file_t, which it neither opens nor closes and which
// outlives it; marks are made in that record, for everyone to see. One a dialog, shared through the manager.
// Options, choices and attributes are found as libcups finds them, ignoring case; constraints and every list
// of keywords are exact. Strings are UTF-8 in the PPD; what is not valid UTF-8 is left out of lists and null
// elsewhere.
class QVPPD_M880
{
public:
    // Null when there is no host, or neither the host nor its session has a PPD.
    static std::shared_ptr<QVPPD_M880> ppdWithHost(platform::PrintDialogHost *host);
    ~QVPPD_M880();
    QVPPD_M880(const QVPPD_M880 &) = delete;
    QVPPD_M880 &operator=(const QVPPD_M880 &) = delete;

    ppd_file_s *cupsPPD() const { return m_ppd; }
    // Null is allowed: no option and no attribute is found then.
    void setCupsPPD(ppd_file_s *ppd) { m_ppd = ppd; }
    // Of the attribute "FileVersion"; null when the PPD has none.
    const std::shared_ptr<const QVVersionInfo_M880> &version() const { return m_version; }
    // Null when the PPD names no model.
    const QString &modelname() const { return m_modelname; }
    // The file name the PPD declares for itself, not where it was read from; null when it declares none.
    QString ppdFilename() const;

    // Every option keyword of the top-level groups in PPD order; built once.
    const QStringList &allOptions();
    // Also true for a common prefix: "DCDigit" where the PPD has "DCDigit1".
    bool hasOption(const QString &option) const;
    // Null when the option is missing or has no choices; the same for the two like it below.
    std::optional<QStringList> choicesForOption(const QString &option) const;
    // Choice keyword to text; `order`, when not null, gets the keywords in PPD order (untouched on null).
    std::optional<QMap<QString, QString>> choicesWithValuesForOptionOrder(const QString &option,
                                                                          QStringList *order) const;
    std::optional<QList<QVPPDChoice_M880>>
    localizedChoicesForOptionWithBundle(const QString &option, const platform::Bundle *bundle) const;
    // Null when the option is missing, or its default names no choice of it.
    std::optional<QVPPDChoice_M880> defaultChoiceForOption(const QString &option) const;
    // Null when the option is missing or nothing is marked.
    std::optional<QVPPDChoice_M880> markedChoiceForOption(const QString &option) const;
    // Does nothing unless both are strings.
    void markChoiceForOption(const QVariant &choice, const QVariant &option);
    // Null string when nothing is marked. A null bundle means no localisation, also below.
    QString localizedMarkedChoiceForOptionWithBundle(const QString &option,
                                                     const platform::Bundle *bundle) const;
    // Null string when the option is missing.
    QString localizedOptionNameWithBundle(const QString &option, const platform::Bundle *bundle) const;
    // The values of every attribute of that name in PPD order; empty when there is none.
    QStringList valuesForAttribute(const QString &name) const;

    bool optionWithChoiceConflictsWithOptionWithChoice(const QString &option1, const QString &choice1,
                                                       const QString &option2, const QString &choice2) const;
    QSet<QString> conflictableOptionsForOptionWithChoice(const QString &option, const QString &choice) const;
    // The same questions by numbers; lives as long as this object.
    const ConstraintTable &constraintTable() const { return m_constraints; }
    // Option to marked choice of the group named "InstallableOptions"; null when the PPD has no such group.
    std::optional<QMap<QString, QString>> chosenInstallableOptions() const;

private:
    QVPPD_M880() = default;
    bool initWithHost(platform::PrintDialogHost *host);
    void loadConstraints();

    ppd_file_s *m_ppd = nullptr;
    quint64 m_encoding = 0; // declared, never set: every text is read as UTF-8
    std::shared_ptr<const QVVersionInfo_M880> m_version;
    QString m_modelname;
    ConstraintTable m_constraints;
    std::optional<QStringList> m_allOptions;
};
