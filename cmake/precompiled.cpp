// Only carries the precompiled headers.
