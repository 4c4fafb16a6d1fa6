// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>
#include <utility>

// What applications tell the print portal, and are told, translated from and to the names of the print
// system. Values are untrusted: what makes no sense is passed over.
namespace host {

// Names and values; the order counts.
using NamedValues = QList<std::pair<QString, QString>>;

// Texts, numbers and booleans of a map from the bus. What has another type, or is unreasonably long, is left
// out.
QJsonObject plainValues(const QVariantMap &map);

// What newer applications can do, among the options of a call: "formats" (a list), "currentPage" and
// "selection" (that they can print these alone).
QJsonObject applicationAbilities(const QVariantMap &options);

// Where the dialog begins.
struct StartingSettings
{
    QString printer; // empty for no wish
    int copies = 1;
    std::optional<bool> collate;
    bool currentPage = false; // alone, where the application knows which it is
    bool selection = false;
    QString pages;          // as a user types them, counted from 1; empty for all
    NamedValues choices;    // PPD keyword, or standard name such as "media", and choice; later ones win
    NamedValues jobOptions; // for the print server, which does it in the application's place
};
StartingSettings startingSettings(const QJsonObject &settings, const QJsonObject &pageSetup);

// What was decided that an application has to know, or may keep for the next time. Nothing secret.
struct ApplicationChoice
{
    QString printer;
    QString pages;       // counted from 1; empty for all
    NamedValues choices; // PPD keyword and choice
    QString format;      // of the document that is to be made: "pdf" or "ps"
    bool currentPage = false;
    bool selection = false;
};
// The application's settings, with what was decided in place of what it sent, and without what the print
// server does: copies, collating, order, pages on a sheet, scale.
QJsonObject settingsForApplication(const QJsonObject &sent, const ApplicationChoice &choice);

// A sheet; all in millimetres.
struct Paper
{
    QString keyword; // of the PPD
    QString text;
    double width = 0, height = 0;
    double left = 0, right = 0, top = 0, bottom = 0; // margins that the printer leaves white
};
// The application's page setup, on this paper. Never empty.
QJsonObject pageSetupForApplication(const QJsonObject &sent, const Paper &paper);

} // namespace host
