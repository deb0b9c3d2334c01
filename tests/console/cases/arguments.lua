-- run: -- SCRIPT first second
print(arg[0], arg[1], arg[2], #arg, ...)
