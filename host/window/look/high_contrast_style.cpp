// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/high_contrast_style.h"

#include <QPainter>
#include <QStyleOption>

namespace host {

namespace {

enum class Shape { Box, Circle };

void drawOutline(const QStyleOption &option, QPainter *painter, Shape shape = Shape::Box)
{
    const auto group = option.state & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled;
    const QRectF place = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(option.palette.color(group, QPalette::WindowText));
    painter->setBrush(Qt::NoBrush);
    if (shape == Shape::Circle)
        painter->drawEllipse(place);
    else
        painter->drawRoundedRect(place, 2, 2);
    painter->restore();
}

} // namespace

HighContrastStyle::HighContrastStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void HighContrastStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                    const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButtonBevel)
        drawOutline(*option, painter);
}

void HighContrastStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                           QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox || control == CC_SpinBox)
        drawOutline(*option, painter);
    else if (control == CC_Slider) {
        QStyleOptionComplex handle(*option);
        handle.rect = subControlRect(control, option, SC_SliderHandle, widget);
        drawOutline(handle, painter);
    }
}

void HighContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                      const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    const bool isInsideField = element == PE_PanelLineEdit && frame && frame->lineWidth == 0;
    if (element == PE_IndicatorRadioButton)
        drawOutline(*option, painter, Shape::Circle);
    else if ((element == PE_PanelLineEdit && !isInsideField) || element == PE_IndicatorCheckBox ||
             element == PE_IndicatorItemViewItemCheck)
        drawOutline(*option, painter);
}

} // namespace host
