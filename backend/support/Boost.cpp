// SPDX-License-Identifier: MIT
// The parts of Asio and Beast that are no templates, which every other source would compile again.
#include <boost/asio/impl/src.hpp>
#include <boost/beast/src.hpp>
