// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QGridLayout;
class QWidget;

namespace host {

class DocumentChoice;

// Adds a row for the title of the job at the end of a page. Writes to `documents` immediately, which is
// borrowed and outlives the page.
void addTitleField(DocumentChoice *documents, QGridLayout *grid, QWidget *page);

} // namespace host
