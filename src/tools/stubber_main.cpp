// qvt-stubber: the stubber library's entry point as a command. The command
// links only the shared library, whose one entry point is declared here.
extern "C" int stubsuif_main(int argc, char **argv);

int main(int argc, char **argv) { return stubsuif_main(argc, argv); }
