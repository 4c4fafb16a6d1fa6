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

// Conversion between the settings of the print portal and the names of the print system. Values from
// applications are untrusted: invalid values are ignored.
namespace host {

// Names and values, in order.
using NamedValues = QList<std::pair<QString, QString>>;

// The texts, numbers and booleans of a map from the bus. Values of other types, or of excessive length, are
// omitted.
QJsonObject plainValues(const QVariantMap &map);

// Abilities of newer applications, from the options of a call: "formats" (a list), "currentPage" and
// "selection" (whether they can print these).
QJsonObject applicationAbilities(const QVariantMap &options);

// The initial settings of the dialog.
struct StartingSettings
{
    QString printer; // empty if none is requested
    int copies = 1;
    std::optional<bool> collate;
    bool currentPage = false; // only this page, if the application has one
    bool selection = false;
    QString pages; // as typed by a user, counted from 1; empty for all
    // PPD keyword or standard name, such as "media", and choice; later ones take precedence
    NamedValues choices;
    NamedValues jobOptions; // applied by the print server instead of the application
};
StartingSettings startingSettings(const QJsonObject &settings, const QJsonObject &pageSetup);

// The settings that the application needs, or may store. Contains no secrets.
struct ApplicationChoice
{
    QString printer;
    QString pages;       // counted from 1; empty for all
    NamedValues choices; // PPD keyword and choice
    QString format;      // of the document to produce: "pdf" or "ps"
    bool currentPage = false;
    bool selection = false;
};
// The application's settings, updated with the user's choices, without the settings that the print server
// applies: copies, collation, order, pages per sheet, scale.
QJsonObject settingsForApplication(const QJsonObject &sent, const ApplicationChoice &choice);

// A paper; all dimensions in millimetres.
struct Paper
{
    QString keyword; // of the PPD
    QString text;
    double width = 0, height = 0;
    double left = 0, right = 0, top = 0, bottom = 0; // unprintable margins
};
// The application's page setup with this paper. Never empty.
QJsonObject pageSetupForApplication(const QJsonObject &sent, const Paper &paper);

} // namespace host
