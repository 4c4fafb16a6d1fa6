// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/digit_codes.h"

#include "panelkit/panel_base.h"
#include "platform/exception.h"
#include "platform/leading_integer.h"

#include <QApplication>

namespace {

constexpr qsizetype codeLength = 5;

QString digitKey(const QString &prefix, qsizetype position)
{
    return prefix + QString::number(position);
}

QString padded(qint32 code)
{
    return QString::asprintf("%05d", code);
}

// The first five decimal digits of a text.
QString leadingDigits(const QString &text)
{
    QString digits;
    for (qsizetype at = 0, found = 0; at < text.size() && found < codeLength;) {
        const auto digit = platform::decimalDigitAt(text, at);
        if (digit) {
            digits += QStringView(text).sliced(at, digit->length);
            ++found;
        }
        at += digit ? digit->length : 1;
    }
    return digits;
}

// Replaces the text. Cursor and selection keep their positions as far as the new text allows.
void replaceText(QLineEdit *editor, const QString &text)
{
    const bool selected = editor->hasSelectedText();
    const int start = selected ? editor->selectionStart() : editor->cursorPosition();
    const int length = selected ? editor->selectionLength() : 0;
    editor->setText(text);
    if (start > text.size())
        editor->end(false);
    else if (selected)
        editor->setSelection(start, length);
    else
        editor->setCursorPosition(start);
}

} // namespace

QVCodeAssistant_M880::QVCodeAssistant_M880() : QVCodeAssistant_M880(&QApplication::beep) {}

QVCodeAssistant_M880::QVCodeAssistant_M880(std::function<void()> beep) : m_beep(std::move(beep)) {}

bool QVCodeAssistant_M880::acceptsText(const QString &text) const
{
    return leadingDigits(text) == text;
}

void QVCodeAssistant_M880::controlTextDidChange(platform::TextField *, const QVariantMap &userInfo)
{
    auto *editor = qobject_cast<QLineEdit *>(userInfo.value(platform::NSFieldEditor).value<QObject *>());
    if (!editor)
        return;
    const QString typed = editor->text();
    const QString kept = leadingDigits(typed);
    if (kept == typed)
        return;
    replaceText(editor, kept);
    m_beep();
}

bool QVCodeAssistant_M880::controlTextShouldEndEditing(platform::TextField *control, QLineEdit *fieldEditor)
{
    const QString text = fieldEditor->text();
    const auto number = platform::leadingInteger(text);
    const qint32 value = number ? number->value : 0;
    const bool isWhole = number && QStringView(text).sliced(number->length).trimmed().isEmpty();
    const bool isLoose = !isWhole && value >= 1 && value <= 99998;
    control->setText(padded(isLoose ? 0 : value));
    return true;
}

QString QVPDE_M880::composeCodeForOption(const QString &prefix)
{
    // The prefix determines the number of digits; the prefixes in use are longer than a code.
    const qsizetype count = prefix.size() < codeLength + 1 ? prefix.size() : codeLength;
    QString code;
    for (qsizetype position = 1; position <= count; ++position)
        code += valueForKey(digitKey(prefix, position)).toString();
    return code;
}

void QVPDE_M880::decomposeCodeForOption(const QString &code, const QString &prefix)
{
    if (code.size() < codeLength)
        throw platform::Exception(platform::Exception::rangeName,
                                  QStringLiteral("A code for %1 has fewer than five digits").arg(prefix));
    for (qsizetype position = 1; position <= codeLength; ++position)
        setValueForKey(QString(code[position - 1]), digitKey(prefix, position));
}
