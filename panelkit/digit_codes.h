// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/text_field.h"

#include <functional>

// Limits a code field to five decimal digits while the user types, and pads it to five when editing ends.
// Stateless; registered under "QVCodeAssistant_M880" for layouts.
class QVCodeAssistant_M880 : public platform::TextFieldDelegate
{
public:
    QVCodeAssistant_M880();
    // `beep` replaces the system's beep; by default QApplication::beep().
    explicit QVCodeAssistant_M880(std::function<void()> beep);

    // Whether the text consists of at most five digits.
    bool acceptsText(const QString &text) const override;
    void controlTextDidChange(platform::TextField *control, const QVariantMap &userInfo) override;
    // Always true.
    bool controlTextShouldEndEditing(platform::TextField *control, QLineEdit *fieldEditor) override;

private:
    std::function<void()> m_beep;
};
