#pragma once

#include <exception>

#include "tactix/platform/Error.h"
#include "tactix/platform/Site.h"
#include "tactix/platform/Weak.h"

namespace tactix {

/// Runs what a user's action or a timer sets off. An error that comes out of it goes to the outermost site's Unhandled,
/// if the site still exists; any other exception arrives there as error 5.
template <class Action>
void RunUserAction(Site& site, Action&& action) {
  const Weak<Site> outermost(site.Outermost());
  try {
    action();
  } catch (const Error& error) {
    if (Site* still = outermost.Get()) still->Unhandled(error);
  } catch (const std::exception& exception) {
    if (Site* still = outermost.Get()) still->Unhandled(Error(Error::InvalidProcedureCall, exception.what()));
  } catch (...) {
    if (Site* still = outermost.Get()) still->Unhandled(Error(Error::InvalidProcedureCall));
  }
}

}  // namespace tactix
