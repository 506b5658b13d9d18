"""The parts of make-sample-archive: facts and inventions on one side, drawing and writing on the other."""
