// The toolkit's own German texts for its standard dialogs and buttons (file dialogs, input boxes,
// message boxes), loaded before the first window opens.
#pragma once

class QCoreApplication;

namespace quor::ui {

// Installs the German translation of the toolkit; false when its file isn't installed.
bool DeutscheStandardTexte(QCoreApplication& app);

} // namespace quor::ui
