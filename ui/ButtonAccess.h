#pragma once

/// Shows the program's buttons to assistive tools whole. The toolkit's own view of a button does
/// not say when it is disabled.
///
/// It is called once, when the application starts.
void installButtonAccess();
