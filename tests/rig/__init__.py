"""The test rig: a display, a sound card with ears, a microphone, a Wine prefix and a driver inside
it, and what is measured with them. Tests and benchmarks of the real program stand on it."""
