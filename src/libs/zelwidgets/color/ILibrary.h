#pragma once

/// The application's library of colours. The application defines the class; the colour widgets
/// take a pointer, which may be null, and hand it on without using it.
class ILibrary;
