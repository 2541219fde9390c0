// Fixture of the layering check: a core file that includes a Qt header.
#include <QString>
