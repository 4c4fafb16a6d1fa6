// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/ppd_custom.h"

#include "host/printing/cups_handles.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>

#include <cups/ppd.h>

#include <algorithm>
#include <limits>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace host {

namespace {

struct PpdCustomText
{
    Q_DECLARE_TR_FUNCTIONS(PpdCustomText)
};

using Type = CustomParameter::Type;

constexpr QLatin1String customPrefix("Custom.");
constexpr double longest = 99999;      // points, if the PPD has no limit
constexpr double mostCharacters = 255; // if the PPD has no limit
constexpr double rounding = 0.01;      // of lengths, in points, since limits have few decimal places

QString number(double value)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(value, 'g', 7);
}

// Accepts only a number: "1.5", "-3", ".5".
std::optional<double> decimal(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("\\A[+-]?([0-9]+(\\.[0-9]*)?|\\.[0-9]+)\\z"));
    if (!form.match(text).hasMatch())
        return std::nullopt;
    return text.toDouble();
}

// Parses "100x200mm" into two lengths with the same unit.
std::optional<std::pair<CustomLength, CustomLength>> readSize(const QString &text)
{
    const qsizetype cross = text.indexOf(QLatin1Char('x'), 0, Qt::CaseInsensitive);
    const auto width = cross < 0 ? std::nullopt : decimal(text.left(cross));
    const auto height = CustomLength::read(text.mid(cross + 1));
    if (!width || !height)
        return std::nullopt;
    return std::pair(CustomLength{*width, height->unit}, *height);
}

bool isWithin(double value, const CustomParameter &parameter)
{
    const double slack = parameter.type == Type::Length ? rounding : 1e-6;
    return value >= parameter.minimum - slack && value <= parameter.maximum + slack;
}

bool isPlainText(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c.category() != QChar::Other_Control; });
}

// Escapes a value for a list of several values, which is delimited by braces and blanks.
QString escaped(const QString &value)
{
    QString result;
    for (const QChar c : value) {
        if (QStringLiteral(" \\'\"").contains(c))
            result += QLatin1Char('\\');
        result += c;
    }
    return result.isEmpty() ? QStringLiteral("''") : result;
}

Type typeOf(ppd_cptype_t type)
{
    switch (type) {
    case PPD_CUSTOM_INT:
        return Type::Whole;
    case PPD_CUSTOM_CURVE:
    case PPD_CUSTOM_INVCURVE:
    case PPD_CUSTOM_REAL:
        return Type::Number;
    case PPD_CUSTOM_POINTS:
        return Type::Length;
    case PPD_CUSTOM_PASSCODE:
        return Type::Digits;
    case PPD_CUSTOM_PASSWORD:
        return Type::Password;
    default:
        return Type::Text;
    }
}

// libcups stores numbers in members of a union, depending on the type.
double numberOf(const ppd_cparam_t &record, const ppd_cplimit_t &limit)
{
    switch (record.type) {
    case PPD_CUSTOM_INT:
        return limit.custom_int;
    case PPD_CUSTOM_CURVE:
        return static_cast<double>(limit.custom_curve);
    case PPD_CUSTOM_INVCURVE:
        return static_cast<double>(limit.custom_invcurve);
    case PPD_CUSTOM_REAL:
        return static_cast<double>(limit.custom_real);
    case PPD_CUSTOM_POINTS:
        return static_cast<double>(limit.custom_points);
    case PPD_CUSTOM_PASSCODE:
        return limit.custom_passcode;
    case PPD_CUSTOM_PASSWORD:
        return limit.custom_password;
    default:
        return limit.custom_string;
    }
}

QString currentOf(const ppd_cparam_t &record)
{
    switch (record.type) {
    case PPD_CUSTOM_INT:
        return QString::number(record.current.custom_int);
    case PPD_CUSTOM_CURVE:
        return plainNumber(static_cast<double>(record.current.custom_curve));
    case PPD_CUSTOM_INVCURVE:
        return plainNumber(static_cast<double>(record.current.custom_invcurve));
    case PPD_CUSTOM_REAL:
        return plainNumber(static_cast<double>(record.current.custom_real));
    case PPD_CUSTOM_POINTS:
        return plainNumber(static_cast<double>(record.current.custom_points));
    case PPD_CUSTOM_PASSCODE:
        return QString::fromUtf8(record.current.custom_passcode);
    case PPD_CUSTOM_PASSWORD:
        return QString::fromUtf8(record.current.custom_password);
    default:
        return QString::fromUtf8(record.current.custom_string);
    }
}

CustomParameter parameterOf(const ppd_cparam_t &record)
{
    CustomParameter parameter;
    parameter.keyword = QString::fromUtf8(record.name);
    parameter.text = record.text[0] ? QString::fromUtf8(record.text) : parameter.keyword;
    parameter.type = typeOf(record.type);
    parameter.minimum = numberOf(record, record.minimum);
    parameter.maximum = numberOf(record, record.maximum);
    parameter.value = currentOf(record);
    if (parameter.maximum < parameter.minimum || (parameter.minimum == 0 && parameter.maximum == 0)) {
        const bool isWhole = parameter.type == Type::Whole;
        parameter.minimum = isWhole ? std::numeric_limits<int>::min() : parameter.isNumeric() ? -longest : 0;
        parameter.maximum = isWhole                 ? std::numeric_limits<int>::max()
                            : parameter.isNumeric() ? longest
                                                    : mostCharacters;
    }
    return parameter;
}

QList<CustomParameter> sizeParameters(ppd_file_t *ppd)
{
    const ppd_size_t *size = ppdPageSize(ppd, "Custom");
    QList<CustomParameter> parameters;
    for (int i = 0; i < 2; ++i) {
        CustomParameter side;
        side.keyword = i == 0 ? QStringLiteral("Width") : QStringLiteral("Height");
        side.text = i == 0 ? PpdCustomText::tr("Width") : PpdCustomText::tr("Height");
        side.type = Type::Length;
        side.minimum = std::max(1.0, static_cast<double>(ppd->custom_min[i]));
        side.maximum = static_cast<double>(ppd->custom_max[i]);
        if (side.maximum <= side.minimum)
            side.maximum = longest;
        if (size)
            side.value = plainNumber(static_cast<double>(i == 0 ? size->width : size->length));
        parameters.append(side);
    }
    return parameters;
}

} // namespace

double CustomLength::pointsIn(const QString &unit)
{
    static const QMap<QString, double> units = {
        {QStringLiteral("pt"), 1},         {QStringLiteral("in"), 72},
        {QStringLiteral("ft"), 864},       {QStringLiteral("mm"), 72 / 25.4},
        {QStringLiteral("cm"), 72 / 2.54}, {QStringLiteral("m"), 72 / 0.0254}};
    return units.value(unit.toLower(), 0);
}

std::optional<CustomLength> CustomLength::read(const QString &text)
{
    const auto isUnit = [](QChar c) { return c.isLetter(); };
    const auto end = std::find_if(text.begin(), text.end(), isUnit);
    const qsizetype digits = end - text.begin();
    CustomLength length;
    const auto value = decimal(text.left(digits));
    length.unit = digits == text.size() ? QStringLiteral("pt") : text.mid(digits).toLower();
    if (!value || pointsIn(length.unit) == 0)
        return std::nullopt;
    length.number = *value;
    return length;
}

bool isCustomChoice(const QString &choice)
{
    return choice.startsWith(customPrefix, Qt::CaseInsensitive) || choice.startsWith(QLatin1Char('{')) ||
           choice.compare(QLatin1String("Custom"), Qt::CaseInsensitive) == 0;
}

QString plainNumber(double number)
{
    QString text = QString::number(number, 'f', 4);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}

QString CustomParameter::typeName() const
{
    switch (type) {
    case Type::Whole:
        return QStringLiteral("integer");
    case Type::Number:
        return QStringLiteral("number");
    case Type::Length:
        return QStringLiteral("length");
    case Type::Digits:
        return QStringLiteral("passcode");
    case Type::Password:
        return QStringLiteral("password");
    default:
        return QStringLiteral("text");
    }
}

QString CustomParameter::inWords() const
{
    const QString from = number(minimum), to = number(maximum);
    switch (type) {
    case Type::Whole:
        return PpdCustomText::tr("a whole number from %1 to %2").arg(from, to);
    case Type::Number:
        return PpdCustomText::tr("a number from %1 to %2").arg(from, to);
    case Type::Length:
        return PpdCustomText::tr("a length from %1 to %2 pt").arg(from, to);
    case Type::Digits:
        return PpdCustomText::tr("%1 to %2 digits").arg(from, to);
    case Type::Password:
        return PpdCustomText::tr("a password of %1 to %2 characters").arg(from, to);
    default:
        return PpdCustomText::tr("a text of %1 to %2 characters").arg(from, to);
    }
}

std::optional<QString> CustomParameter::read(const QString &text) const
{
    if (isNumeric()) {
        bool isNumber = false;
        double number = 0; // set if the value is a number
        if (type == Type::Length) {
            const auto length = CustomLength::read(text);
            isNumber = length.has_value();
            number = length ? length->points() : 0;
        } else {
            const auto value = decimal(text);
            isNumber = value.has_value();
            number = value.value_or(0);
        }
        const bool isWhole = type != Type::Whole || !text.contains(QLatin1Char('.'));
        if (!isNumber || !isWhole || !isWithin(number, *this))
            return std::nullopt;
        return type == Type::Whole ? QString::number(qRound64(number)) : plainNumber(number);
    }
    const bool areDigits =
        std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    const auto count = static_cast<double>(text.toUcs4().size());
    if (!isPlainText(text) || !isWithin(count, *this) || (type == Type::Digits && !areDigits))
        return std::nullopt;
    return text;
}

bool CustomChoice::isSecret() const
{
    return std::any_of(parameters.begin(), parameters.end(),
                       [](const CustomParameter &parameter) { return parameter.isSecret(); });
}

std::optional<QStringList> CustomChoice::read(const QString &choice, const QString &option,
                                              QString *problem) const
{
    *problem = PpdCustomText::tr("%1 takes %2.").arg(option, inWords());
    QStringList given;
    if (choice.startsWith(QLatin1Char('{')) && !isSize) {
        CupsOptionList list;
        list.parse(choice.toUtf8().constData());
        for (const CustomParameter &parameter : parameters) {
            const char *value = list.value(parameter.keyword.toUtf8().constData());
            if (!value)
                return std::nullopt;
            given.append(QString::fromUtf8(value));
        }
        if (list.count() != parameters.size())
            return std::nullopt;
    } else if (choice.startsWith(customPrefix, Qt::CaseInsensitive)) {
        const QString rest = choice.mid(customPrefix.size());
        const auto size = isSize ? readSize(rest) : std::nullopt;
        if (size)
            given = {plainNumber(size->first.points()), plainNumber(size->second.points())};
        else
            given = {rest};
    }
    if (given.size() != parameters.size())
        return std::nullopt;
    QStringList values;
    for (qsizetype i = 0; i < given.size(); ++i) {
        const auto value = parameters.at(i).read(given.at(i));
        // A brace would end the list, even if escaped.
        const bool breaksList = parameters.size() > 1 && !isSize && given.at(i).contains(u'}');
        if (!value || breaksList)
            return std::nullopt;
        values.append(*value);
    }
    problem->clear();
    return values;
}

QString CustomChoice::written(const QStringList &values) const
{
    if (isSize) {
        const auto width = CustomLength::read(values.value(0));
        const QString first = width ? plainNumber(width->number) : values.value(0);
        return customPrefix + first + QLatin1Char('x') + values.value(1);
    }
    if (values.size() == 1)
        return customPrefix + values.first();
    QStringList pairs;
    for (qsizetype i = 0; i < parameters.size(); ++i)
        pairs.append(parameters.at(i).keyword + QLatin1Char('=') + escaped(values.value(i)));
    return QLatin1Char('{') + pairs.join(QLatin1Char(' ')) + QLatin1Char('}');
}

QString CustomChoice::current() const
{
    QStringList values;
    for (const CustomParameter &parameter : parameters)
        values.append(parameter.value);
    return written(values);
}

QString CustomChoice::shown(const QString &choice) const
{
    QString ignored;
    const auto values = read(choice, QString(), &ignored);
    if (!values)
        return text;
    QStringList words;
    if (const auto size = isSize ? readSize(choice.mid(customPrefix.size())) : std::nullopt) {
        words.append(PpdCustomText::tr("%1 × %2 %3", "width, height, unit")
                         .arg(number(size->first.number), number(size->second.number), size->second.unit));
    } else {
        for (qsizetype i = 0; i < parameters.size(); ++i) {
            const CustomParameter &parameter = parameters.at(i);
            QString word = values->at(i);
            if (parameter.isSecret())
                word = QStringLiteral("•••••");
            else if (parameter.type == Type::Length)
                word = PpdCustomText::tr("%1 pt").arg(number(word.toDouble()));
            else if (parameter.isNumeric())
                word = number(word.toDouble());
            words.append(parameters.size() > 1
                             ? PpdCustomText::tr("%1: %2", "name and value").arg(parameter.text, word)
                             : word);
        }
    }
    return PpdCustomText::tr("%1 (%2)", "Custom (100 × 200 mm)").arg(text, words.join(QStringLiteral(", ")));
}

QString CustomChoice::inWords() const
{
    if (isSize) {
        const auto side = [this](qsizetype i, bool most) {
            return number(most ? parameters.at(i).maximum : parameters.at(i).minimum);
        };
        return PpdCustomText::tr(
                   "sizes from %1 × %2 to %3 × %4 pt, such as Custom.%5 (units: pt, mm, cm, m, in, ft)")
            .arg(side(0, false), side(1, false), side(0, true), side(1, true),
                 plainNumber(parameters.at(0).maximum) + QLatin1Char('x') +
                     plainNumber(parameters.at(1).maximum));
    }
    if (parameters.size() == 1)
        return PpdCustomText::tr("Custom. followed by %1").arg(parameters.first().inWords());
    QStringList words;
    for (const CustomParameter &parameter : parameters)
        words.append(PpdCustomText::tr("%1 is %2").arg(parameter.keyword, parameter.inWords()));
    QStringList pairs;
    for (const CustomParameter &parameter : parameters)
        pairs.append(parameter.keyword + QStringLiteral("=…"));
    return PpdCustomText::tr("{%1}, where %2")
        .arg(pairs.join(QLatin1Char(' ')), words.join(QStringLiteral(", ")));
}

std::optional<CustomChoice> customChoiceOf(ppd_file_s *ppd, ppd_option_s *option)
{
    const ppd_choice_t *choice = ppdFindChoice(option, "Custom");
    if (!choice)
        return std::nullopt;
    CustomChoice custom;
    // libcups uses an English text if the PPD has none.
    const QString text = QString::fromUtf8(choice->text);
    const bool isNamed = !text.isEmpty() && text != QLatin1String("Custom");
    custom.text = isNamed ? text : PpdCustomText::tr("Custom");
    custom.isSize = qstrcmp(option->keyword, "PageSize") == 0;
    if (custom.isSize) {
        custom.parameters = sizeParameters(ppd);
        return custom;
    }
    ppd_coption_t *record = ppdFindCustomOption(ppd, option->keyword);
    if (!record)
        return std::nullopt;
    for (ppd_cparam_t *p = ppdFirstCustomParam(record); p; p = ppdNextCustomParam(record))
        custom.parameters.append(parameterOf(*p));
    return custom.parameters.isEmpty() ? std::nullopt : std::optional(custom);
}

} // namespace host
