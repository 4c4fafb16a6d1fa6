// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/carry_over.h"

#include "host/session/dialog_session.h"
#include "host/session/job_settings.h"
#include "host/session/setting_keys.h"

#include <QCoreApplication>

namespace host {

namespace {

struct CarryOverText
{
    Q_DECLARE_TR_FUNCTIONS(CarryOverText)
};

// Like those of an application, general settings that the policy forbids become a notice.
void carryGeneral(const DialogSession &from, DialogSession *to)
{
    const GeneralSettings &chosen = from.general();
    to->setOfferedParts(chosen.offersCurrentPage, chosen.offersSelection);
    for (const QString &name : GeneralSettings::allNames()) {
        if (chosen.value(name) != from.startingGeneral().value(name))
            chooseGeneral(to, name, chosen.value(name));
    }
}

} // namespace

void carryOver(const DialogSession &from, DialogSession *to)
{
    carryGeneral(from, to); // before the sides, which a booklet changes
    QStringList protections, others;
    for (const ChosenSetting &setting : from.chosen().inOrder()) {
        PrintError error;
        if (choose(to, setting, &error))
            continue;
        if (setting.key == passwordName && takesPrintMode(to->destination(), passwordName)) {
            // A job with a password that cannot be entered at the printer could not be released there.
            to->addNotice(
                CarryOverText::tr("The password has been removed: the job will not be protected. %1")
                    .arg(error.message));
            continue;
        }
        to->noteChosen(setting);
        QStringList &missed = setting.protects ? protections : others;
        if (!missed.contains(setting.text))
            missed.append(setting.text);
    }
    const QString separator = QStringLiteral(", ");
    if (!protections.isEmpty())
        to->addNotice(CarryOverText::tr("This printer does not have “%1”: the job will not be protected.")
                          .arg(protections.join(separator)));
    if (!others.isEmpty())
        to->addNotice(CarryOverText::tr("Not available on this printer: %1.").arg(others.join(separator)));
}

} // namespace host
