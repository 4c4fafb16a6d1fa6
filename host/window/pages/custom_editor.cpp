// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/custom_editor.h"

#include "host/window/look/announced.h"
#include "host/window/look/contrast.h"
#include "host/window/look/explanations.h"
#include "host/window/look/foreign_text.h"
#include "platform/wheel_guard.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <utility>

namespace host {

namespace {

constexpr double defaultWidth = 210 / 25.4 * 72; // points: A4, if nothing has been chosen
constexpr double defaultHeight = 297 / 25.4 * 72;
// The largest number that can be entered. A number beyond the printer's limits is kept and reported: a spin
// box with these limits would change it to another number.
constexpr int mostTyped = 999'999;

int decimalsOf(const QString &unit)
{
    return unit == QLatin1String("cm") || unit == QLatin1String("in") ? 2 : 1;
}

double roundedUp(double value, int decimals)
{
    const double scale = std::pow(10, decimals);
    return std::ceil(value * scale - 1e-6) / scale;
}

double roundedDown(double value, int decimals)
{
    return -roundedUp(-value, decimals);
}

// The smallest and the largest length of a side that can be entered in a unit.
std::pair<QString, QString> limitsOf(const CustomParameter &side, const QString &unit)
{
    const int decimals = decimalsOf(unit);
    const double scale = CustomLength::pointsIn(unit);
    return {QLocale().toString(roundedUp(side.minimum / scale, decimals), 'f', decimals),
            QLocale().toString(roundedDown(side.maximum / scale, decimals), 'f', decimals)};
}

QString defaultUnit()
{
    return QLocale().measurementSystem() == QLocale::MetricSystem ? QStringLiteral("mm")
                                                                  : QStringLiteral("in");
}

} // namespace

CustomEditor::CustomEditor(const CustomChoice &custom, const QString &option, QWidget *parent)
    : QWidget(parent), m_custom(custom), m_option(option), m_grid(new QGridLayout(this)),
      m_hint(new QLabel(this)), m_problem(new QLabel(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(8);
    m_grid->setVerticalSpacing(6);
    m_grid->setColumnStretch(1, 1);
    if (custom.isSize) {
        addSize();
    } else {
        for (const CustomParameter &parameter : custom.parameters)
            addParameter(parameter);
    }
    makeAnnounced(m_problem);
    m_problem->setObjectName(QStringLiteral("problem"));
    m_problem->hide();
    for (QLabel *text : {m_hint, m_problem}) {
        text->setTextFormat(Qt::PlainText);
        text->setWordWrap(true);
        m_grid->addWidget(text, m_grid->rowCount(), 0, 1, 2);
    }
    colorHint(false);
    setFocusProxy(m_fields.first().widget);
    setWhatsThis(explanationOf(QStringLiteral("custom")));
    setChoice(custom.current());
    setRanges();
}

void CustomEditor::addSize()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    m_unit = new QComboBox(this);
    platform::guardFromWheel(m_unit);
    for (const auto &[unit, text] :
         {std::pair("mm", tr("mm")), std::pair("cm", tr("cm")), std::pair("in", tr("in", "inches")),
          std::pair("pt", tr("pt", "points"))})
        m_unit->addItem(text, QString::fromLatin1(unit));
    m_unit->setAccessibleName(tr("Unit of the paper size"));
    m_unit->setObjectName(QStringLiteral("unit"));
    m_currentUnit = defaultUnit();
    m_unit->setCurrentIndex(m_unit->findData(m_currentUnit));
    for (const CustomParameter &side : m_custom.parameters) {
        auto *box = new QDoubleSpinBox(this);
        platform::guardFromWheel(box);
        box->setObjectName(side.keyword);
        box->setAccessibleName(side.text);
        box->setToolTip(tooltipOf(side.text));
        box->setMinimumWidth(88);
        box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        if (!m_sides.isEmpty())
            row->addWidget(new QLabel(QStringLiteral("×"), this));
        row->addWidget(box, 1);
        m_sides.append(box);
        m_fields.append({box, [this, box] { return plainNumber(box->value()) + m_currentUnit; },
                         [this, box](const QString &points) {
                             box->setValue(points.toDouble() / CustomLength::pointsIn(m_currentUnit));
                         },
                         true});
        connect(box, &QDoubleSpinBox::valueChanged, this, &CustomEditor::fieldEdited);
        connect(box, &QDoubleSpinBox::editingFinished, this, &CustomEditor::editingFinished);
    }
    row->addWidget(m_unit);
    m_grid->addLayout(row, 0, 0, 1, 2);
    setRanges();
    for (qsizetype i = 0; i < m_sides.size(); ++i) {
        const QSignalBlocker quiet(m_sides.at(i));
        m_fields.at(i).setValue(QString::number(i == 0 ? defaultWidth : defaultHeight));
    }
    connect(m_unit, &QComboBox::activated, this, &CustomEditor::changeUnit);
}

void CustomEditor::addParameter(const CustomParameter &parameter)
{
    const Field field = parameter.type == CustomParameter::Type::Whole ? wholeField(parameter)
                        : parameter.isNumeric()                        ? numberField(parameter)
                                                                       : textField(parameter);
    field.widget->setObjectName(parameter.keyword);
    field.widget->setAccessibleName(QStringLiteral("%1: %2").arg(m_option, parameter.text));
    const int row = m_grid->rowCount();
    if (m_custom.parameters.size() > 1) {
        auto *label = new QLabel(this);
        label->setTextFormat(Qt::PlainText);
        label->setText(tr("%1:", "label of a field").arg(elided(parameter.text, label, 120)));
        m_grid->addWidget(label, row, 0);
        m_grid->addWidget(field.widget, row, 1);
    } else {
        m_grid->addWidget(field.widget, row, 0, 1, 2);
    }
    m_fields.append(field);
}

CustomEditor::Field CustomEditor::wholeField(const CustomParameter &parameter)
{
    auto *box = new QSpinBox(this);
    platform::guardFromWheel(box);
    box->setRange(static_cast<int>(std::min(parameter.minimum, -double(mostTyped))),
                  static_cast<int>(std::max(parameter.maximum, double(mostTyped))));
    connect(box, &QSpinBox::valueChanged, this, &CustomEditor::fieldEdited);
    connect(box, &QSpinBox::editingFinished, this, &CustomEditor::editingFinished);
    return {box, [box] { return QString::number(box->value()); },
            [box](const QString &value) { box->setValue(value.toInt()); }, true};
}

CustomEditor::Field CustomEditor::numberField(const CustomParameter &parameter)
{
    const bool isLength = parameter.type == CustomParameter::Type::Length;
    auto *box = new QDoubleSpinBox(this);
    platform::guardFromWheel(box);
    const double span = parameter.maximum - parameter.minimum;
    box->setDecimals(isLength ? 1 : span > 1 ? 2 : 4);
    box->setSingleStep(span > 20 ? 1 : span / 20);
    box->setRange(std::min(parameter.minimum, -double(mostTyped)),
                  std::max(parameter.maximum, double(mostTyped)));
    if (isLength)
        box->setSuffix(tr(" pt", "points, behind a number"));
    connect(box, &QDoubleSpinBox::valueChanged, this, &CustomEditor::fieldEdited);
    connect(box, &QDoubleSpinBox::editingFinished, this, &CustomEditor::editingFinished);
    return {box, [box] { return plainNumber(box->value()); },
            [box](const QString &value) { box->setValue(value.toDouble()); }, true};
}

CustomEditor::Field CustomEditor::textField(const CustomParameter &parameter)
{
    auto *field = new QLineEdit(this);
    field->setMaxLength(static_cast<int>(std::clamp(parameter.maximum, 1.0, 1024.0)));
    if (parameter.type == CustomParameter::Type::Digits)
        field->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), field));
    if (parameter.isSecret()) {
        field->setEchoMode(QLineEdit::Password);
        field->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText);
    }
    connect(field, &QLineEdit::textEdited, this, &CustomEditor::fieldEdited);
    connect(field, &QLineEdit::editingFinished, this, &CustomEditor::editingFinished);
    return {field, [field] { return field->text(); },
            [field](const QString &value) { field->setText(value); }, false};
}

void CustomEditor::setRanges()
{
    QStringList words;
    if (m_custom.isSize) {
        const int decimals = decimalsOf(m_currentUnit);
        QStringList least, most;
        for (qsizetype i = 0; i < m_sides.size(); ++i) {
            const auto [from, to] = limitsOf(m_custom.parameters.at(i), m_currentUnit);
            const QSignalBlocker quiet(m_sides.at(i));
            m_sides.at(i)->setDecimals(3); // values from the command line may have more digits
            m_sides.at(i)->setRange(0, mostTyped);
            m_sides.at(i)->setDecimals(decimals);
            m_sides.at(i)->setSingleStep(m_currentUnit == QLatin1String("in") ? 0.25 : 1);
            least.append(from);
            most.append(to);
        }
        words.append(tr("From %1 to %2 %3", "smallest size, largest size, unit")
                         .arg(least.join(QStringLiteral(" × ")), most.join(QStringLiteral(" × ")),
                              m_unit->currentText()));
    } else {
        for (const CustomParameter &parameter : m_custom.parameters) {
            const QString limits = parameter.inWords();
            words.append(m_custom.parameters.size() > 1
                             ? tr("%1:", "label of a field").arg(oneLine(parameter.text, 40)) +
                                   QLatin1Char(' ') + limits
                             : limits.left(1).toUpper() + limits.mid(1));
        }
    }
    m_hint->setText(words.join(QLatin1Char('\n')));
}

void CustomEditor::changeUnit()
{
    QList<double> points;
    for (QDoubleSpinBox *side : std::as_const(m_sides))
        points.append(side->value() * CustomLength::pointsIn(m_currentUnit));
    m_currentUnit = m_unit->currentData().toString();
    setRanges();
    for (qsizetype i = 0; i < m_sides.size(); ++i) {
        const QSignalBlocker quiet(m_sides.at(i));
        m_fields.at(i).setValue(QString::number(points.at(i), 'f', 6));
    }
    fieldEdited();
    Q_EMIT editingFinished();
}

void CustomEditor::colorHint(bool wrong)
{
    QPalette changed = m_hint->palette();
    changed.setColor(QPalette::WindowText, wrong ? errorInk(palette()) : mutedInk(palette()));
    m_hint->setPalette(changed);
}

// The first field whose value is not valid; -1 if there is none.
qsizetype CustomEditor::invalidField() const
{
    for (qsizetype i = 0; i < m_fields.size(); ++i) {
        if (!m_custom.parameters.at(i).read(m_fields.at(i).value()))
            return i;
    }
    return -1;
}

void CustomEditor::showProblem()
{
    QWidget *field = m_fields.at(qMax(0, invalidField())).widget;
    m_problem->setPalette(errorPalette(palette()));
    m_problem->setText(problem());
    announce(m_problem, m_problem->text());
    m_hint->hide();
    m_problem->show();
    field->setAccessibleDescription(m_problem->text());
    field->setFocus();
    if (auto *number = qobject_cast<QAbstractSpinBox *>(field))
        number->selectAll();
}

void CustomEditor::hideProblem()
{
    if (m_problem->isHidden())
        return;
    m_problem->hide();
    m_hint->show();
    for (const Field &field : std::as_const(m_fields))
        field.widget->setAccessibleDescription({});
}

void CustomEditor::fieldEdited()
{
    m_shown.clear();
    hideProblem();
    colorHint(m_fields.first().isNumber && !problem().isEmpty()); // a text may be incomplete
    Q_EMIT edited();
}

void CustomEditor::setChoice(const QString &choice)
{
    QString ignored;
    const auto values = m_custom.read(choice, m_option, &ignored);
    if (!values || choice == this->choice())
        return;
    const QString unit = m_custom.isSize ? CustomLength::read(choice.section(u'x', -1))->unit : QString();
    const int known = m_unit ? m_unit->findData(unit) : -1;
    if (known >= 0) {
        m_currentUnit = unit;
        m_unit->setCurrentIndex(known);
        setRanges();
    }
    for (qsizetype i = 0; i < m_fields.size(); ++i) {
        const QSignalBlocker quiet(m_fields.at(i).widget);
        m_fields.at(i).setValue(values->at(i));
    }
    m_shown = choice; // may have more digits than the fields
    hideProblem();
    colorHint(false);
}

QString CustomEditor::choice() const
{
    if (!m_shown.isEmpty())
        return m_shown;
    QStringList values;
    for (const Field &field : m_fields)
        values.append(field.value());
    return m_custom.written(values);
}

QString CustomEditor::problem() const
{
    QString problem;
    const bool isValid = m_custom.read(choice(), m_option, &problem).has_value();
    const qsizetype invalid = isValid ? -1 : invalidField();
    if (invalid < 0 || !m_fields.at(invalid).isNumber)
        return problem;
    const CustomParameter &parameter = m_custom.parameters.at(invalid);
    QLocale plain;
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    QString value = m_fields.at(invalid).value();
    QString range = parameter.inWords();
    if (m_custom.isSize) {
        const QString unit = m_unit->currentText();
        const auto [from, to] = limitsOf(parameter, m_currentUnit);
        value.chop(m_currentUnit.size());
        range = tr("a length from %1 to %2 %3", "smallest, largest, unit").arg(from, to, unit);
    }
    value = plain.toString(value.toDouble(), 'f', QLocale::FloatingPointShortest);
    if (m_custom.isSize)
        value += QLatin1Char(' ') + m_unit->currentText();
    const QString name = m_custom.parameters.size() > 1 ? parameter.text : m_option;
    return tr("%1: %2 is out of range; enter %3.", "setting, value, such as: a number from 1 to 9")
        .arg(oneLine(name, 40), value, range);
}

} // namespace host
