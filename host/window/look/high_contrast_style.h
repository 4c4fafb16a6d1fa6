// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QProxyStyle>

namespace host {

// Qt's Fusion style with an outline in the text color around every control, since Fusion's outlines are too
// pale for a high-contrast palette.
class HighContrastStyle : public QProxyStyle
{
    Q_OBJECT
public:
    HighContrastStyle();

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};

} // namespace host
