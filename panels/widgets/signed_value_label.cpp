// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/widgets/signed_value_label.h"

#include "platform/layout_loader.h"

#include <QFontMetrics>

namespace {

const bool signedValueLabelIsRegistered = [] {
    platform::registerLayoutWidget<QVSignedValueLabel_M880>(QStringLiteral("QVSignedValueLabel_M880"));
    return true;
}();

constexpr char16_t leftToRightMark = u'\u200e';
constexpr char16_t minusSign = u'\u2212'; // as wide as a plus, unlike the hyphen

} // namespace

QVSignedValueLabel_M880::QVSignedValueLabel_M880(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setText(textForValue(m_value));
}

void QVSignedValueLabel_M880::setValue(int value)
{
    m_value = value;
    // In right-to-left text the sign would otherwise move to the other side of its number.
    setText((isRightToLeft() ? QString(QChar(leftToRightMark)) : QString()) + textForValue(value));
}

QString QVSignedValueLabel_M880::textForValue(int value)
{
    const qint64 wide = value;
    if (wide < 0)
        return QChar(minusSign) + QString::number(-wide);
    return wide > 0 ? u'+' + QString::number(wide) : QStringLiteral("0");
}

QSize QVSignedValueLabel_M880::minimumSizeHint() const
{
    const QFontMetrics metrics(font());
    const int widest =
        qMax(metrics.horizontalAdvance(QStringLiteral("+0")), metrics.horizontalAdvance(text()));
    return {widest + 2 * margin(), QLabel::minimumSizeHint().height()};
}
