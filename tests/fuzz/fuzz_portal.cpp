// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Arguments of an application to the print portal: a JSON object with "settings", "pageSetup" and "options".

#include "host/service/portal_settings.h"
#include "tests/fuzz/fuzz_support.h"

#include <QJsonDocument>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace host;
    const QJsonObject sent = QJsonDocument::fromJson(bytesOf(data, size)).object();
    const QVariantMap options = sent.value(QLatin1String("options")).toObject().toVariantMap();
    applicationAbilities(options);
    const QJsonObject settings = plainValues(sent.value(QLatin1String("settings")).toObject().toVariantMap());
    const QJsonObject pageSetup =
        plainValues(sent.value(QLatin1String("pageSetup")).toObject().toVariantMap());
    const StartingSettings start = startingSettings(settings, pageSetup);
    requireThat(start.copies >= 1 && start.copies <= 9999);

    ApplicationChoice choice;
    choice.printer = start.printer;
    choice.pages = start.pages;
    choice.choices = start.choices;
    choice.format = QStringLiteral("pdf");
    requireThat(!settingsForApplication(settings, choice).isEmpty());
    requireThat(!pageSetupForApplication(pageSetup, {}).isEmpty());
    return 0;
}
