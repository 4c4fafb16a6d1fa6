// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

namespace host {

// The languages of the dialog in order of preference, such as "de-DE"; from the environment, including
// LANGUAGE.
QStringList dialogLanguages();

// Makes libcups use the dialog's language. By default it uses the C locale, ignores LANGUAGE, and falls back
// to English if the user's locale has not been generated. Changes the environment: call once at program
// start, before there are other threads.
void speakDialogLanguage();

} // namespace host
