// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/option_form.h"

#include "host/session/booklet.h"
#include "host/session/dialog_session.h"
#include "host/window/look/explanations.h"
#include "host/window/look/foreign_text.h"
#include "host/window/look/mnemonics.h"
#include "host/window/pages/custom_editor.h"
#include "host/window/pages/page_controls.h"
#include "platform/choice_box.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr int boxWidth = 240; // pixels, as in the panels
constexpr int mostWidth = 360;
constexpr int labelWidth = 220;

const QString customItem = QStringLiteral("Custom");

} // namespace

OptionForm::OptionForm(DialogSession *session, QGridLayout *grid, QObject *parent)
    : QObject(parent), m_session(session), m_grid(grid)
{
}

void OptionForm::add(const QStringList &keywords)
{
    const qsizetype first = m_rows.size();
    for (const QString &keyword : keywords)
        addRow(keyword);
    refreshFrom(first);
}

void OptionForm::addRow(const QString &keyword)
{
    const auto option = m_session->ppd()->option(keyword);
    const int panel = m_session->panels().ofKeyword(keyword);
    if (!option || (option->choices.isEmpty() && !option->custom) ||
        m_session->rule().hiddenOptions.contains(keyword) ||
        (panel >= 0 && m_session->rule().hidesPanel(m_session->panels().panel(panel)->panelKind())))
        return;
    auto *box = new platform::ChoiceBox(m_grid->parentWidget());
    box->setMinimumWidth(boxWidth);
    box->setMaximumWidth(mostWidth);
    box->setObjectName(option->keyword);
    box->setOptionKeyword(option->keyword);
    box->setAccessibleName(oneLine(option->text));
    const bool isColor = option->keyword == colorOptionKeyword(*m_session->ppd());
    box->setWhatsThis(explanationOf(isColor ? QStringLiteral("print-color-mode") : option->keyword));
    box->setEnabled(panel < 0 || !m_session->isPanelLocked(panel));
    for (const PpdOption::Choice &choice : option->choices) {
        box->addItem(oneLine(choice.text), choice.keyword);
        box->setItemData(box->count() - 1, choice.keyword, platform::ChoiceBox::choiceRole);
    }
    if (option->custom)
        box->addItem(tr("%1…", "Custom, whose values are asked for").arg(oneLine(option->custom->text)),
                     customItem);
    auto *label = new QLabel(m_grid->parentWidget());
    label->setTextFormat(Qt::PlainText);
    label->setText(
        tr("%1:", "label of a field").arg(Mnemonics::escaped(elided(option->text, label, labelWidth))));
    label->setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    label->setBuddy(box);
    const int row = m_grid->rowCount();
    m_grid->addWidget(label, row, 0);
    m_grid->addWidget(box, row, 1);
    m_rows.append({.keyword = option->keyword, .box = box});
    const qsizetype index = m_rows.size() - 1;
    if (option->custom) {
        CustomEditor *editor = new CustomEditor(*option->custom, option->text, m_grid->parentWidget());
        m_rows.last().editor = editor;
        m_grid->addWidget(editor, row + 1, 1);
        connect(editor, &CustomEditor::edited, this, [this, index] { markCustom(index); });
        connect(editor, &CustomEditor::editingFinished, this, [this, index] { finishCustom(index); });
    }
    if (!box->isEnabled() || !m_session->rule().lockedChoice(m_session->ppd(), keyword).isNull())
        addAttribution(box, row + 2);
    connect(box, &QComboBox::activated, this, [this, index] { choose(index); });
}

void OptionForm::addAttribution(QWidget *box, int row)
{
    const QString text = Policy::current().attribution();
    auto *note = new QLabel(m_grid->parentWidget());
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setText(text);
    box->setAccessibleDescription(text);
    m_grid->addWidget(note, row, 1);
}

void OptionForm::choose(qsizetype index)
{
    Row &row = m_rows[index];
    row.awaitsValues = false;
    row.isTyped = false;
    const QString choice = row.box->currentData().toString();
    if (row.editor && choice == customItem) {
        row.editor->show();
        row.editor->setFocus();
        markCustom(index);
        finishCustom(index);
        return;
    }
    m_session->markChoice(row.keyword, choice);
    Q_EMIT chosen(row.keyword);
}

// Invalid values are not marked; the form keeps them and reports the problem. The choice that was marked
// before the user began to type is marked again, since a valid beginning of the input is not what the user
// wants.
void OptionForm::markCustom(qsizetype index)
{
    Row &row = m_rows[index];
    const QString earlier = m_session->ppd()->markedChoice(row.keyword);
    if (!std::exchange(row.isTyped, true))
        row.before = earlier;
    row.awaitsValues = !m_session->markChoice(row.keyword, row.editor->choice());
    if (row.awaitsValues && earlier != row.before)
        m_session->markChoice(row.keyword, row.before);
    row.marked = m_session->ppd()->markedChoice(row.keyword);
    const bool isMarked = !row.awaitsValues || row.marked != earlier;
    refresh();
    if (isMarked)
        Q_EMIT chosen(row.keyword);
}

void OptionForm::finishCustom(qsizetype index)
{
    Row &row = m_rows[index];
    row.isTyped = row.isTyped && row.awaitsValues;
}

platform::ChoiceBox *OptionForm::box(const QString &keyword) const
{
    for (const Row &row : m_rows) {
        if (row.keyword == keyword)
            return row.box;
    }
    return nullptr;
}

QString OptionForm::problem() const
{
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [](const Row &r) { return r.awaitsValues; });
    return row == m_rows.end() ? QString() : row->editor->problem();
}

void OptionForm::showProblem()
{
    for (const Row &row : std::as_const(m_rows)) {
        if (row.awaitsValues) {
            row.editor->showProblem();
            return;
        }
    }
}

void OptionForm::refresh()
{
    refreshFrom(0);
}

void OptionForm::refreshFrom(qsizetype first)
{
    QStringList keywords;
    for (qsizetype i = first; i < m_rows.size(); ++i)
        keywords.append(m_rows.at(i).keyword);
    const QList<quint32> revisions = m_session->ppd()->forbiddenRevisions(keywords);
    const bool isBooklet = m_session->general().layout.isBooklet();
    for (qsizetype i = first; i < m_rows.size(); ++i)
        refreshRow(m_rows[i], revisions.at(i - first), isBooklet);
}

void OptionForm::refreshRow(Row &row, quint32 revision, bool isBooklet)
{
    const QString marked = m_session->ppd()->markedChoice(row.keyword);
    if (row.isTyped && marked != row.marked) { // set elsewhere, for example by undo
        row.isTyped = false;
        row.awaitsValues = false;
    }
    const bool isCustom = row.editor && (row.awaitsValues || isCustomChoice(marked));
    const QString current = isCustom ? customItem : marked;
    if (row.editor) {
        row.editor->setVisible(isCustom);
        if (isCustom && !row.awaitsValues)
            row.editor->setChoice(marked);
    }
    if (row.isDecided && row.current == current && row.revision == revision && row.isBooklet == isBooklet) {
        row.box->setCurrentIndex(row.index);
        return;
    }
    row.index = row.box->findData(current);
    row.box->setCurrentIndex(row.index);
    row.current = current;
    row.revision = revision;
    row.isBooklet = isBooklet;
    row.isDecided = true;
    greyOut(row);
}

void OptionForm::greyOut(const Row &row)
{
    if (m_session->rule().lockedChoice(m_session->ppd(), row.keyword) == row.current) {
        for (int i = 0; i < row.box->count(); ++i)
            row.box->setObstacle(i, i == row.index ? QString() : Policy::current().attribution());
        return;
    }
    QMap<QString, OptionChoice> forbidden = m_session->ppd()->forbiddenChoices(row.keyword);
    if (const QString upsideDown = row.isBooklet ? choiceNotForBooklet(*m_session, row.keyword) : QString();
        !upsideDown.isEmpty())
        forbidden.insert(upsideDown, bookletChoice(true));
    for (int i = 0; i < row.box->count(); ++i) {
        const QString choice = row.box->itemData(i).toString();
        const auto obstacle = choice == row.current ? forbidden.cend() : forbidden.constFind(choice);
        row.box->setObstacle(i, obstacle == forbidden.cend()
                                    ? QString()
                                    : notAvailableWhile(obstacle->optionText, obstacle->choiceText));
    }
}

} // namespace host
