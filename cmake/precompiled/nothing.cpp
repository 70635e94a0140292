// A target has to have a source; what it is for are its headers.
