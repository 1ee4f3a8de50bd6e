#pragma once

/// Shows the program's buttons to assistive tools whole. The toolkit's own view of a button does
/// not say when it is disabled.
///
/// To be called once, when there is an application and before it has a window.
void installButtonAccess();
