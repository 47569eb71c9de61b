extern int nowhere;
int add(int a, int b);

int twice(int x)
{
    return add(x, x);
}
