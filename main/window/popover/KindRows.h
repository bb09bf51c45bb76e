// SPDX-License-Identifier: MIT

#pragma once

namespace ambrelle {

class Clock;
class SettingsForm;

/// The rows of every widget.
void addAppearanceRows(SettingsForm& form);
/// The rows of one kind. The clock outlives the form.
void addClockRows(SettingsForm& form);
void addPhotoRows(SettingsForm& form);
void addCountdownRows(SettingsForm& form, const Clock& clock);
void addQuoteRows(SettingsForm& form);

} // namespace ambrelle
