// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/obstacle_text.h"

#include "platform/bundle.h"
#include "plugin/manager.h"
#include "ppd/ppd_model.h"

QString QVTextOfChoice(const QVPDEManager_M880 &manager, const QString &option, const QString &choice)
{
    const auto choices =
        manager.ppd() ? manager.ppd()->localizedChoicesForOptionWithBundle(option, manager.bundle().get())
                      : std::nullopt;
    if (choices) {
        for (const QVPPDChoice_M880 &each : *choices) {
            if (each.choice == choice)
                return each.text;
        }
    }
    return choice;
}

QString QVObstacleText(const QVPDEManager_M880 &manager, const QString &option, const QString &choiceText)
{
    constexpr const char *sentence =
        QT_TRANSLATE_NOOP("QVPopUpButton_M880", "Not available while \"%1\" is \"%2\".");
    const auto &bundle = manager.bundle();
    const QString name =
        manager.ppd() ? manager.ppd()->localizedOptionNameWithBundle(option, bundle.get()) : option;
    return (bundle ? bundle->translate("QVPopUpButton_M880", sentence) : QString::fromUtf8(sentence))
        .arg(name, choiceText);
}
