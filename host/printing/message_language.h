// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

namespace host {

// The languages of the dialog, preferred first, as "de-DE"; from the environment, LANGUAGE included.
QStringList dialogLanguages();

// Has libcups speak the dialog's language from now on. It asks the C locale, which knows nothing of LANGUAGE
// and falls back to English on machines that have not generated the user's locale. Changes the environment:
// call once, at the start of the program, before there is another thread.
void speakDialogLanguage();

} // namespace host
