// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/page_settings.h"

#include <QStringList>

namespace host {

const QString naturalScalingName = QStringLiteral("natural-scaling");

namespace {

constexpr double a4Width = 210, a4Height = 297; // millimetres

QString quoted(QString value)
{
    value.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    for (const char special : {'"', '\'', ' ', '\t', '\n'})
        value.replace(QLatin1Char(special), QLatin1Char('\\') + QString(QLatin1Char(special)));
    return value;
}

} // namespace

bool PageSettings::operator==(const PageSettings &other) const
{
    return options == other.options && isMonochrome == other.isMonochrome && percent == other.percent &&
           isImageScaledByServer == other.isImageScaledByServer && ppd() == other.ppd();
}

QString PageSettings::optionText() const
{
    QStringList words;
    for (const auto &[name, value] : options)
        words.append(name + QLatin1Char('=') + quoted(value));
    return words.join(QLatin1Char(' '));
}

QByteArray PageSettings::ppd() const
{
    const bool isKnown = paper.width > 0 && paper.height > 0;
    const PaperSize sheet = isKnown ? paper : PaperSize{.width = a4Width, .height = a4Height};
    const auto points = [](double millimetres) {
        return QByteArray::number(millimetres * 72 / 25.4, 'f', 2);
    };
    const QByteArray area = points(sheet.left) + ' ' + points(sheet.bottom) + ' ' +
                            points(sheet.width - sheet.right) + ' ' + points(sheet.height - sheet.top);
    return "*PPD-Adobe: \"4.3\"\n"
           "*FormatVersion: \"4.3\"\n"
           "*FileVersion: \"1.0\"\n"
           "*LanguageVersion: English\n"
           "*LanguageEncoding: ISOLatin1\n"
           "*PCFileName: \"PAGES.PPD\"\n"
           "*Manufacturer: \"None\"\n"
           "*Product: \"(Pages)\"\n"
           "*ModelName: \"Pages\"\n"
           "*ShortNickName: \"Pages\"\n"
           "*NickName: \"Pages\"\n"
           "*PSVersion: \"(3010.000) 0\"\n"
           "*ColorDevice: True\n"
           "*OpenUI *PageSize: PickOne\n"
           "*DefaultPageSize: Sheet\n"
           "*PageSize Sheet: \"\"\n"
           "*CloseUI: *PageSize\n"
           "*DefaultImageableArea: Sheet\n"
           "*ImageableArea Sheet: \"" +
           area +
           "\"\n"
           "*DefaultPaperDimension: Sheet\n"
           "*PaperDimension Sheet: \"" +
           points(sheet.width) + ' ' + points(sheet.height) + "\"\n";
}

} // namespace host
