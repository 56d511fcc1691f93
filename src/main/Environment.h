#pragma once

namespace drossbin {

/// Tells the toolkit, by the environment, to write nothing, to load no code but the system's, and
/// to start no program. To be called before there is an application.
void keepToItself();

} // namespace drossbin
